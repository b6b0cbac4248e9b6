#pragma once

#include <gtk/gtk.h>

namespace quorvel {

/// Cuts what a page says in a bubble beside a field of a form and in the list of a field's choices: the
/// engine lays out all of it, and a megabyte would hold the window up for seconds.
void cutPopupTexts(GtkPopover* popup);
/// The same with what a server says in its question for a sign-in, or any other that the engine asks in the
/// page's area.
void cutQuestion(GtkWidget* question);

} // namespace quorvel
