#pragma once

#include "Preferences.h"

#include <gtkmm/window.h>

namespace quorvel {

/// The window around the settings form. It has no buttons, cannot be resized, and Escape closes it.
class SettingsWindow : public Gtk::Window {
 public:
  /// The preferences have to outlive the window.
  explicit SettingsWindow(Preferences& preferences);
};

} // namespace quorvel
