#pragma once

#include <gtkmm/settings.h>

namespace quorvel::testing {

/// Text one and a half times as large as usual, as the desktop's setting has it, for as long as this lives.
class LargeText {
 public:
  LargeText() { dpi() = usual_ * 3 / 2; }
  ~LargeText() { dpi() = usual_; }
  LargeText(const LargeText&) = delete;
  LargeText& operator=(const LargeText&) = delete;

 private:
  static Glib::PropertyProxy<int> dpi() { return Gtk::Settings::get_default()->property_gtk_xft_dpi(); }

  int usual_ = dpi();
};

} // namespace quorvel::testing
