#pragma once

#include "layout/WidgetPer.h"
#include "preferences/Preferences.h"

#include <gtkmm/box.h>

namespace quorvel {

/// The settings form: four switches, each of which takes effect and is stored the moment it is flipped.
///
/// 520 points wide, as high as its content. It shows what `preferences` say, whoever changed them.
class SettingsView : public Gtk::Box {
 public:
  /// The preferences have to outlive the view.
  explicit SettingsView(Preferences& preferences);

 private:
  class ToggleRow;

  Gtk::Widget* row(const char* title, PreferenceKey key);
  void refresh();

  Preferences& preferences_;
  WidgetPer<PreferenceKey, ToggleRow> rows_;
};

} // namespace quorvel
