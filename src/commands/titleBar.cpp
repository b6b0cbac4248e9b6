#include "commands/titleBar.h"

#include <gtkmm/window.h>

namespace quorvel {

Gtk::HeaderBar& giveTitleBar(Gtk::Window& window) {
  auto* bar = Gtk::make_managed<Gtk::HeaderBar>();
  bar->add_css_class("slim");
  window.set_titlebar(*bar);
  return *bar;
}

} // namespace quorvel
