#pragma once

#include "support/Setting.h"

namespace quorvel::tests {

/// The desktop's text size, as a factor of the usual one, for as long as this lives.
struct TextScale : Setting<int> {
  explicit TextScale(double factor)
      : Setting(Gtk::Settings::get_default()->property_gtk_xft_dpi(), static_cast<int>(96 * 1024 * factor)) {}
};

} // namespace quorvel::tests
