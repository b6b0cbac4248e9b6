#pragma once

#include "commands/Command.h"

#include <giomm/menu.h>
#include <gtkmm/application.h>
#include <vector>

namespace quorvel {

/// The commands of one menu in its order; a divider stands between two sections.
struct CommandGroup {
  std::string title; ///< with its mnemonic
  std::vector<std::vector<Command>> sections;

  Glib::RefPtr<Gio::Menu> menu() const;
  /// Gives the application the commands and their keys.
  void addTo(Gtk::Application& application) const;
  /// Enables and disables them as their conditions hold now.
  void update(Gtk::Application& application) const;
};

} // namespace quorvel
