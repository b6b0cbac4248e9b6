#pragma once

#include "layout/stacks.h"

#include <gtkmm/spinner.h>

namespace quorvel {

class DesktopBrowserModel;
class PageDialogView;
class WarningBar;

/// The content of the client's window: the sidebar, and the toolbar above the page. It holds no state;
/// whatever it shows, it reads from the model. Making or dropping it never touches the page.
class ContentView : public HStack {
 public:
  /// The least size, in points, at which everything is of use.
  static constexpr int minimumWidth = 1180;
  static constexpr int minimumHeight = 760;

  /// The model has to outlive the view.
  explicit ContentView(DesktopBrowserModel& browser);

 private:
  void refresh();

  DesktopBrowserModel& browser_;
  Gtk::Spinner* spinner_;
  WarningBar* warning_;
  PageDialogView* dialog_;
};

} // namespace quorvel
