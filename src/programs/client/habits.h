#pragma once

#include <gtkmm/application.h>
#include <gtkmm/window.h>

namespace quorvel {

// What people know from other programs and try here too. These are no commands: no menu and no list names
// them.

/// Control with W closes whichever of the application's windows has the focus.
void addClosingKey(Gtk::Application& application);

/// Alt with an arrow and the side buttons of a mouse go back and forward, F5 reloads, by the application's
/// commands for that. A key that the page in the window uses itself stays the page's; the side buttons are
/// taken before the page, which the engine would not tell which button it was.
void addBrowsingHabits(Gtk::Window& window);

} // namespace quorvel
