#pragma once

#include <gtkmm/headerbar.h>

namespace quorvel {

/// The bar at the top of a window, on the window's own ground. Where a window brings none, some desktops draw
/// one of their own and on others the toolkit does, in grey.
Gtk::HeaderBar& giveTitleBar(Gtk::Window& window);

} // namespace quorvel
