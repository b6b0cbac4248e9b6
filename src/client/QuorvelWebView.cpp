#include "QuorvelWebView.h"

#include "DesktopBrowserModel.h"

namespace quorvel {

QuorvelWebView::QuorvelWebView(DesktopBrowserModel& browser) {
  auto* view = Glib::wrap(GTK_WIDGET(browser.webView()));
  view->set_hexpand(true);
  view->set_vexpand(true);
  append(*view);
}

} // namespace quorvel
