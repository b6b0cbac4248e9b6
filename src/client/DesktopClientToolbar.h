#pragma once

#include "layout/stacks.h"

#include <gtkmm/button.h>

namespace quorvel {

class AddressField;
class DesktopBrowserModel;

/// Back, forward, reload, the address on screen, and the way out to the default browser.
class DesktopClientToolbar : public HStack {
 public:
  /// The model has to outlive the toolbar.
  explicit DesktopClientToolbar(DesktopBrowserModel& browser);

 private:
  void refresh();
  void setEnabled(Gtk::Button& button, bool isEnabled);

  DesktopBrowserModel& browser_;
  Gtk::Button* back_;
  Gtk::Button* forward_;
  Gtk::Button* reload_;
  AddressField* address_;
};

} // namespace quorvel
