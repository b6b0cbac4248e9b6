#pragma once

#include <gtkmm/window.h>

namespace quorvel {

/// Lists every command that has a key. Escape closes it.
class ShortcutsWindow : public Gtk::Window {
 public:
  ShortcutsWindow();
};

} // namespace quorvel
