#pragma once

#include <gtkmm/widget.h>

namespace quorvel::tests {

/// A desktop whose language is written from right to left, for as long as this lives.
struct RightToLeft {
  RightToLeft() { Gtk::Widget::set_default_direction(Gtk::TextDirection::RTL); }
  ~RightToLeft() { Gtk::Widget::set_default_direction(Gtk::TextDirection::LTR); }
  RightToLeft(const RightToLeft&) = delete;
  RightToLeft& operator=(const RightToLeft&) = delete;
};

} // namespace quorvel::tests
