#include "QuorvelWebView.h"

#include "DesktopBrowserModel.h"

namespace quorvel {

QuorvelWebView::QuorvelWebView(DesktopBrowserModel& browser) {
  auto* view = Glib::wrap(GTK_WIDGET(browser.webView()));
  if (auto* previousHost = dynamic_cast<Gtk::Box*>(view->get_parent()))
    previousHost->remove(*view);
  view->set_hexpand(true);
  view->set_vexpand(true);
  append(*view);
}

} // namespace quorvel
