#include "client/DesktopClientToolbar.h"

#include "brand/buttons.h"
#include "client/AddressField.h"
#include "client/DesktopBrowserModel.h"
#include "observation/observe.h"

namespace quorvel {
DesktopClientToolbar::DesktopClientToolbar(DesktopBrowserModel& browser)
    : HStack(0), browser_(browser),
      back_(symbolButton("chevron.left", "Back", ButtonStyle::bordered, [&browser] { browser.goBack(); })),
      forward_(symbolButton("chevron.right", "Forward", ButtonStyle::bordered,
                            [&browser] { browser.goForward(); })),
      reload_(
          symbolButton("arrow.clockwise", "Reload", ButtonStyle::bordered, [&browser] { browser.reload(); })),
      address_(Gtk::make_managed<AddressField>()) {
  add_css_class("client-toolbar");
  auto* external = button("Open externally", "arrow.up.forward.app", ButtonStyle::bordered,
                          [&browser] { browser.openExternal(); });
  external->set_tooltip_text("Open current page in browser");
  add({padded(14, 10, stretched(hstack(10, {back_, forward_, reload_, stretched(address_), external})))});
  observe(browser, *this, &DesktopClientToolbar::refresh);
}

void DesktopClientToolbar::refresh() {
  setEnabled(*back_, browser_.canGoBack);
  setEnabled(*forward_, browser_.canGoForward);
  address_->show(browser_.addressOnScreen());
}

/// A button that is disabled under the keyboard's focus would drop it; the one beside it takes it over.
void DesktopClientToolbar::setEnabled(Gtk::Button& button, bool isEnabled) {
  if (!isEnabled && button.has_focus())
    reload_->grab_focus();
  button.set_sensitive(isEnabled);
}

} // namespace quorvel
