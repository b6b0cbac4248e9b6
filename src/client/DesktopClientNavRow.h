#pragma once

#include "brand/buttons.h"

#include <gtkmm/box.h>
#include <gtkmm/image.h>
#include <gtkmm/label.h>

namespace quorvel {

/// A destination of the sidebar: symbol, title and subtitle in one button, raised while it is the selected
/// one.
class DesktopClientNavRow : public Gtk::Box {
 public:
  DesktopClientNavRow(const Glib::ustring& title, const Glib::ustring& subtitle, std::string_view symbolName,
                      Action action);

  void show(bool isSelected);

 private:
  Gtk::Image* symbol_;
  Gtk::Label* title_;
  Gtk::Button* button_;
};

} // namespace quorvel
