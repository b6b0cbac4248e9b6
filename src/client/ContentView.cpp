#include "client/ContentView.h"

#include "client/DesktopBrowserModel.h"
#include "client/DesktopClientSidebar.h"
#include "client/DesktopClientToolbar.h"
#include "client/DownloadsView.h"
#include "client/PageDialogView.h"
#include "client/QuorvelWebView.h"
#include "client/WarningBar.h"
#include "client/displayedAddress.h"
#include "layout/Frame.h"
#include "layout/accessible.h"
#include "observation/observe.h"

#include <gtkmm/overlay.h>
#include <gtkmm/separator.h>

namespace quorvel {
namespace {

/// The same widget, taking all the height its stack has.
template <class Widget>
Widget* tall(Widget* widget) {
  widget->set_vexpand(true);
  return widget;
}

Gtk::Spinner* loadingSpinner() {
  auto* spinner = padded({.top = 10}, Gtk::make_managed<Gtk::Spinner>());
  spinner->set_halign(Gtk::Align::CENTER);
  spinner->set_valign(Gtk::Align::START);
  spinner->set_can_target(false);
  setAccessibleName(*spinner, "Loading");
  return spinner;
}

Gtk::Widget* pageArea(DesktopBrowserModel& browser, Gtk::Widget* dialog, Gtk::Spinner* spinner) {
  auto* area = Gtk::make_managed<Gtk::Overlay>();
  area->add_css_class("client-page");
  area->property_accessible_role() = Gtk::Accessible::Role::GROUP;
  area->set_child(*Gtk::make_managed<QuorvelWebView>(browser));
  area->add_overlay(*dialog);
  area->add_overlay(*spinner);
  return tall(stretched(area));
}

} // namespace

ContentView::ContentView(DesktopBrowserModel& browser)
    : HStack(0), browser_(browser), spinner_(loadingSpinner()), warning_(Gtk::make_managed<WarningBar>()),
      dialog_(Gtk::make_managed<PageDialogView>(
          [&browser](const DialogAnswer& answer) { browser.answer(answer); })) {
  add_css_class("client-window");
  set_size_request(minimumWidth, minimumHeight);
  auto* sidebar =
      Gtk::make_managed<Frame>(Frame::Size{.width = 306}, *Gtk::make_managed<DesktopClientSidebar>(browser));
  auto* line = decorative(Gtk::make_managed<Gtk::Separator>(Gtk::Orientation::VERTICAL));
  auto* page =
      vstack(0, {Gtk::make_managed<DesktopClientToolbar>(browser), stretched(warning_),
                 pageArea(browser, dialog_, spinner_), stretched(Gtk::make_managed<DownloadsView>(browser))});
  add({sidebar, tall(line), page});
  observe(browser, *this, &ContentView::refresh);
}

void ContentView::refresh() {
  warning_->show(*browser_.warning);
  dialog_->show(browser_.dialog, displayedAddress(browser_.addressOnScreen()).origin);
  spinner_->set_visible(browser_.isLoading);
  spinner_->set_spinning(browser_.isLoading);
}

} // namespace quorvel
