#pragma once

#include <gtk/gtk.h>

namespace quorvel {

/// Keeps the list that the engine has in a popup of a page's no wider than the page, and than the screen has
/// room for. From GTK 4.18 on (where it was seen) a popup that finds no room closes at once.
void fitOnScreen(GtkPopover* popup);

} // namespace quorvel
