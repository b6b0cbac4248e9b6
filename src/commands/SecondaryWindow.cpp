#include "commands/SecondaryWindow.h"

#include "commands/titleBar.h"

#include <gtkmm/application.h>
#include <gtkmm/shortcutcontroller.h>

namespace quorvel {

SecondaryWindow::SecondaryWindow(const Glib::ustring& title, Gtk::Widget& content) {
  set_title(title);
  set_resizable(false);
  giveTitleBar(*this);
  set_child(content);

  auto keys = Gtk::ShortcutController::create();
  keys->add_shortcut(Gtk::Shortcut::create(Gtk::ShortcutTrigger::parse_string("Escape"),
                                           Gtk::NamedAction::create("window.close")));
  add_controller(keys);
}

/// A window that is given a focus before it is on screen is never announced (GTK 4.8).
void SecondaryWindow::startAt(Gtk::Widget& first) {
  signal_map().connect(sigc::hide_return(sigc::mem_fun(first, &Gtk::Widget::grab_focus)));
}

void showBeside(Gtk::Window& main, std::unique_ptr<Gtk::Window>& window, const MakeWindow& make) {
  if (!window) {
    window = make();
    main.get_application()->add_window(*window); // or the program's keys would be dead in it
    window->set_transient_for(main);
    window->set_hide_on_close(true);
  }
  window->present();
}

} // namespace quorvel
