#include "client/DesktopClientToolbar.h"

#include "brand/buttons.h"
#include "brand/symbol.h"
#include "client/DesktopBrowserModel.h"
#include "observation/observe.h"

namespace quorvel {
namespace {

/// Read-only. The lock is decoration, whatever the address.
Gtk::Widget* addressField(Gtk::Label* address) {
  auto* lock = symbol("lock.fill", {TextStyle::caption, FontWeight::bold, TextColor::green});
  auto* field = hstack(0, {padded(12, 8, stretched(hstack(8, {lock, stretched(address)})))});
  field->add_css_class("panel-raised");
  field->add_css_class("outlined");
  return field;
}

} // namespace

DesktopClientToolbar::DesktopClientToolbar(DesktopBrowserModel& browser)
    : HStack(0), browser_(browser),
      back_(symbolButton("chevron.left", "Back", ButtonStyle::bordered, [&browser] { browser.goBack(); })),
      forward_(symbolButton("chevron.right", "Forward", ButtonStyle::bordered,
                            [&browser] { browser.goForward(); })),
      reload_(
          symbolButton("arrow.clockwise", "Reload", ButtonStyle::bordered, [&browser] { browser.reload(); })),
      address_(singleLine("", {TextStyle::caption, FontWeight::semibold, TextColor::secondaryInk},
                          Pango::EllipsizeMode::MIDDLE)) {
  add_css_class("client-toolbar");
  auto* external = button("Open externally", "arrow.up.forward.app", ButtonStyle::bordered,
                          [&browser] { browser.openExternal(); });
  external->set_tooltip_text("Open current page in browser");
  add({padded(14, 10, stretched(hstack(10, {back_, forward_, reload_, addressField(address_), external})))});
  observe(browser, *this, &DesktopClientToolbar::refresh);
}

void DesktopClientToolbar::refresh() {
  setEnabled(*back_, browser_.canGoBack);
  setEnabled(*forward_, browser_.canGoForward);
  address_->set_text(*browser_.currentURLString);
}

/// A button that is disabled under the keyboard's focus would drop it; the one beside it takes it over.
void DesktopClientToolbar::setEnabled(Gtk::Button& button, bool isEnabled) {
  if (!isEnabled && button.has_focus())
    reload_->grab_focus();
  button.set_sensitive(isEnabled);
}

} // namespace quorvel
