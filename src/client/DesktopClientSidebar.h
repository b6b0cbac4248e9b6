#pragma once

#include "client/QuorvelRoute.h"
#include "layout/WidgetPer.h"
#include "layout/stacks.h"

namespace quorvel {

class DesktopBrowserModel;
class DesktopClientNavRow;

/// The service's destinations, of which those on screen are highlighted, between the logo and the status
/// card.
class DesktopClientSidebar : public VStack {
 public:
  /// The model has to outlive the sidebar.
  explicit DesktopClientSidebar(DesktopBrowserModel& browser);

 private:
  Gtk::Widget* destinations();
  void refresh();

  DesktopBrowserModel& browser_;
  WidgetPer<QuorvelRoute, DesktopClientNavRow> rows_;
};

} // namespace quorvel
