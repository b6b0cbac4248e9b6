#pragma once

#include "commands/CommandGroup.h"

namespace quorvel {

class DesktopBrowserModel;

/// Everything the user can have the program do. Menus, keys and the list of shortcuts are made from it.
struct Commands {
  CommandGroup client;  ///< what becomes of the page
  CommandGroup program; ///< what concerns the program

  /// What the program's own commands do.
  struct Program {
    std::function<void()> showSettings, showShortcuts, showAbout, quit;
  };
  /// The model has to outlive the commands.
  Commands(DesktopBrowserModel& browser, Program actions);
  void addTo(Gtk::Application& application) const;
};

} // namespace quorvel
