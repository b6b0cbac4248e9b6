#pragma once

#include <gtkmm/window.h>
#include <string>

namespace quorvel::tests {

// Clicks and keys that take the whole way through the display server, as a user's do. The pointer and the
// keyboard belong to the display, so tests that use them run by themselves.

/// Puts the pointer over the middle of a widget that is on screen.
void pointAt(Gtk::Widget& widget);
/// What the tip of a widget says. The pointer is moved again where none comes: one that has just gone makes
/// the toolkit deaf to a first move.
std::string tipOf(Gtk::Widget& widget);
/// Clicks in the middle of a widget that is on screen.
void clickOn(Gtk::Widget& widget);
/// Strikes a key ("space", "Return", "Tab") in the window that the pointer is over.
void strikeKey(const std::string& name);
/// Holds a key down in a window of this program, or in a menu over one, until it has repeated itself for so
/// long that a press takes effect, and one that follows it too. The window has to have the keyboard.
void holdKey(const std::string& name, Gtk::Widget& window);
/// Gives a widget the focus in a window that has the keyboard.
void focusOn(Gtk::Widget& widget);

} // namespace quorvel::tests
