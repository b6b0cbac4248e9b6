#pragma once

#include <gtkmm/widget.h>
#include <string>

namespace quorvel::tests {

// Clicks and keys that take the whole way through the display server, as a user's do. The pointer and the
// keyboard belong to the display, so tests that use them run by themselves.

/// Clicks in the middle of a widget that is on screen.
void clickOn(Gtk::Widget& widget);
/// Strikes a key ("space", "Return", "Tab") in the window that the pointer is over.
void strikeKey(const std::string& name);
/// Holds a key down, which repeats itself after a while, until it is released.
void holdKey(const std::string& name);
void releaseKey(const std::string& name);

} // namespace quorvel::tests
