#include "client/DesktopClientSidebar.h"

#include "brand/sidebar.h"
#include "client/DesktopBrowserModel.h"
#include "client/DesktopClientNavRow.h"
#include "client/ServiceOrigin.h"
#include "observation/observe.h"
#include "vocabulary/Enumeration.h"

namespace quorvel {
namespace {

struct Destination {
  QuorvelRoute route;
  const char* title;
  const char* subtitle;
  const char* symbol;
};
constexpr PerCase<QuorvelRoute, Destination> everyDestination{
    Destination{QuorvelRoute::agent, "Agent workspace", "Chats and approvals", "message.fill"},
    Destination{QuorvelRoute::connectors, "Connectors", "Apps and access",
                "point.3.connected.trianglepath.dotted"},
    Destination{QuorvelRoute::browserWorkspace, "Browser workspace", "Page context", "safari.fill"},
    Destination{QuorvelRoute::voice, "Voice agent", "Calls and scheduling", "phone.fill"},
    Destination{QuorvelRoute::pricing, "Pricing", "Plans and billing", "creditcard.fill"},
    Destination{QuorvelRoute::support, "Support", "Help and contact", "questionmark.circle.fill"},
};

Gtk::Widget* header() {
  return padded({.top = 22, .trailing = 20, .leading = 20},
                sidebarHeader({42, {TextStyle::title3, FontWeight::bold}, "Desktop agent client"}));
}

Gtk::Widget* statusCard() {
  auto* card = sidebarStatusCard("LIVE BACKEND", "WebKit",
                                 "This app is connected to " + std::string(serviceHost) +
                                     ", so sign-in, sessions, billing, connectors, and the agent workspace "
                                     "run through the live service.");
  return padded({.trailing = 20, .bottom = 18, .leading = 20}, card);
}

} // namespace

DesktopClientSidebar::DesktopClientSidebar(DesktopBrowserModel& browser) : VStack(18), browser_(browser) {
  add_css_class("client-sidebar");
  auto* newChat = newChatButton(FontWeight::black, [&browser] { browser.load(QuorvelRoute::agent); });
  add({header(), padded(20, 0, newChat), stretched(verticalScroller("Destinations", destinations())),
       vspacer(), statusCard()});
  observe(browser, *this, &DesktopClientSidebar::refresh);
}

Gtk::Widget* DesktopClientSidebar::destinations() {
  auto* list = vstack(8, {sidebarCaption("Live app", 20)});
  for (const auto& [route, title, subtitle, symbol] : everyDestination) {
    const auto open = [this, itsRoute = route] { browser_.load(itsRoute); };
    auto* row = Gtk::make_managed<DesktopClientNavRow>(title, subtitle, symbol, open);
    rows_.emplace_back(route, row);
    list->add({row});
  }
  return list;
}

void DesktopClientSidebar::refresh() {
  for (const auto& [route, row] : rows_)
    row->setSelected(browser_.isShowing(route));
}

} // namespace quorvel
