#pragma once

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

  void refresh();

  ToggleRow& requireApprovalForSpend_;
  ToggleRow& requireApprovalForCustomerMessages_;
  ToggleRow& showInspector_;
  ToggleRow& dailyBriefEnabled_;
};

} // namespace quorvel
