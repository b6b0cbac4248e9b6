#pragma once

#include <gtkmm/box.h>

namespace quorvel {

class DesktopBrowserModel;

/// The place of the model's one web view in the window. It makes, configures and loads nothing: the view is
/// the model's, and outlives the place, which in turn changes nothing in the view when the model changes.
class QuorvelWebView : public Gtk::Box {
 public:
  explicit QuorvelWebView(DesktopBrowserModel& browser);
};

} // namespace quorvel
