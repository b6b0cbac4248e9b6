#pragma once

#include "programs/client/commands.h"

#include <gtkmm/popovermenubar.h>

namespace quorvel {

/// The menu "Quorvel", which keeps its commands enabled as the model says.
class CommandMenu : public Gtk::PopoverMenuBar {
 public:
  /// The commands are the application's already. All three have to outlive the menu.
  CommandMenu(const CommandGroup& commands, DesktopBrowserModel& browser, Gtk::Application& application);

 private:
  void refresh() { commands_.update(application_); }

  const CommandGroup& commands_;
  Gtk::Application& application_;
};

} // namespace quorvel
