#pragma once

#include <gtkmm/settings.h>

namespace quorvel::tests {

/// The desktop's text size, as a factor of the usual one, for as long as this lives.
struct TextScale {
  explicit TextScale(double factor) { dpi = static_cast<int>(96 * 1024 * factor); }
  ~TextScale() { dpi = before; }
  TextScale(const TextScale&) = delete;
  TextScale& operator=(const TextScale&) = delete;

  Glib::PropertyProxy<int> dpi = Gtk::Settings::get_default()->property_gtk_xft_dpi();
  int before = dpi;
};

} // namespace quorvel::tests
