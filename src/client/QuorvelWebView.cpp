#include "client/QuorvelWebView.h"

#include "client/DesktopBrowserModel.h"
#include "layout/accessible.h"

namespace quorvel {

QuorvelWebView::QuorvelWebView(DesktopBrowserModel& browser) {
  auto& view = browser.webView().widget();
  if (auto* previousHost = dynamic_cast<Gtk::Box*>(view.get_parent()))
    previousHost->remove(view);
  view.set_hexpand(true);
  view.set_vexpand(true);
  append(view);
  setAccessibleName(view, "Page");
}

} // namespace quorvel
