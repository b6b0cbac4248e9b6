#pragma once

#include "commands/CommandGroup.h"

#include <gtkmm/menubutton.h>

namespace quorvel {

/// The button at the end of the header bar with what concerns the program rather than the page.
class PrimaryMenu : public Gtk::MenuButton {
 public:
  explicit PrimaryMenu(const CommandGroup& commands);
};

} // namespace quorvel
