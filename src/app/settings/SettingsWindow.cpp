#include "SettingsWindow.h"

#include "SettingsView.h"

#include <gtkmm/shortcutcontroller.h>

namespace quorvel {

SettingsWindow::SettingsWindow(Preferences& preferences) {
  set_title("Settings");
  set_resizable(false);
  set_child(*Gtk::make_managed<SettingsView>(preferences));

  auto shortcuts = Gtk::ShortcutController::create();
  shortcuts->add_shortcut(Gtk::Shortcut::create(Gtk::ShortcutTrigger::parse_string("Escape"),
                                                Gtk::NamedAction::create("window.close")));
  add_controller(shortcuts);
}

} // namespace quorvel
