#include "client/QuorvelWebView.h"

#include "client/DesktopBrowserModel.h"

namespace quorvel {

QuorvelWebView::QuorvelWebView(DesktopBrowserModel& browser) {
  auto& view = browser.webView().widget();
  if (auto* previousHost = dynamic_cast<Gtk::Box*>(view.get_parent()))
    previousHost->remove(view);
  view.set_hexpand(true);
  view.set_vexpand(true);
  append(view);
}

} // namespace quorvel
