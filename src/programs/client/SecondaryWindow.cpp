#include "programs/client/SecondaryWindow.h"

#include <gtkmm/shortcutcontroller.h>

namespace quorvel {

SecondaryWindow::SecondaryWindow(const Glib::ustring& title, Gtk::Widget& content) {
  set_title(title);
  set_resizable(false);
  set_child(content);

  auto keys = Gtk::ShortcutController::create();
  keys->add_shortcut(Gtk::Shortcut::create(Gtk::ShortcutTrigger::parse_string("Escape"),
                                           Gtk::NamedAction::create("window.close")));
  add_controller(keys);
}

} // namespace quorvel
