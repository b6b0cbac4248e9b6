#pragma once

#include <functional>
#include <giomm/menu.h>
#include <gtkmm/application.h>
#include <string>
#include <vector>

namespace quorvel {

class DesktopBrowserModel;

/// Something the user can have the program do, by menu or by key.
struct Command {
  const char* action; ///< its name among the application's actions
  const char* title;  ///< with its mnemonic
  const char* key;    ///< empty where it has none
  std::function<void()> perform;
  std::function<bool()> isEnabled = [] { return true; };

  /// The title as it is read.
  std::string plainTitle() const;
};

/// The commands of one menu in its order; a divider stands between two sections.
struct CommandGroup {
  const char* title; ///< with its mnemonic
  std::vector<std::vector<Command>> sections;

  Glib::RefPtr<Gio::Menu> menu() const;
  /// Gives the application the commands and their keys.
  void addTo(Gtk::Application& application) const;
  /// Enables and disables them as their conditions hold now.
  void update(Gtk::Application& application) const;
};

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
