#pragma once

#include <giomm/simpleactiongroup.h>
#include <gtkmm/application.h>
#include <gtkmm/popovermenubar.h>

namespace quorvel {

class DesktopBrowserModel;

/// The menu "Quorvel": the commands of the live client, with their keys. Back and Forward are enabled as the
/// model says, everything else always is.
class CommandMenu : public Gtk::PopoverMenuBar {
 public:
  /// Gives `window` the commands and `application` their keys. The model has to outlive the menu.
  CommandMenu(DesktopBrowserModel& browser, Gtk::Application& application, Gtk::Widget& window);

  /// A command as the user knows it; `key` is empty where it has none.
  struct Entry {
    std::string title, key;
  };
  /// The commands in the order of the menu.
  static std::vector<Entry> entries();

 private:
  void refresh();
  void setEnabled(const char* action, bool isEnabled);

  DesktopBrowserModel& browser_;
  Glib::RefPtr<Gio::SimpleActionGroup> actions_ = Gio::SimpleActionGroup::create();
};

} // namespace quorvel
