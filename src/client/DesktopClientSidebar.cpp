#include "client/DesktopClientSidebar.h"

#include "brand/BrandMark.h"
#include "brand/StatusPill.h"
#include "brand/text.h"
#include "client/DesktopBrowserModel.h"
#include "client/DesktopClientNavRow.h"
#include "client/ServiceOrigin.h"
#include "observation/observe.h"

#include <gtkmm/scrolledwindow.h>

namespace quorvel {
namespace {

struct Destination {
  QuorvelRoute route;
  const char* title;
  const char* subtitle;
  const char* symbol;
};
constexpr Destination everyDestination[] = {
    {QuorvelRoute::agent, "Agent workspace", "Chats and approvals", "message.fill"},
    {QuorvelRoute::connectors, "Connectors", "Apps and access", "point.3.connected.trianglepath.dotted"},
    {QuorvelRoute::browserWorkspace, "Browser workspace", "Page context", "safari.fill"},
    {QuorvelRoute::voice, "Voice agent", "Calls and scheduling", "phone.fill"},
    {QuorvelRoute::pricing, "Pricing", "Plans and billing", "creditcard.fill"},
    {QuorvelRoute::support, "Support", "Help and contact", "questionmark.circle.fill"},
};

Gtk::Widget* header() {
  auto* name = vstack(
      2, {text("Quorvel", {TextStyle::title3, FontWeight::bold}),
          text("Desktop agent client", {TextStyle::caption, FontWeight::semibold, TextColor::secondaryInk})});
  auto* row = hstack(12, {Gtk::make_managed<BrandMark>(42), name});
  return padded({.top = 22, .trailing = 20, .leading = 20}, row);
}

Gtk::Widget* newChatButton(DesktopBrowserModel& browser) {
  auto* label = text("+ New chat", {TextStyle::headline, FontWeight::black, TextColor::black});
  label->set_halign(Gtk::Align::CENTER);
  auto* chat =
      button(padded(0, 13, label), ButtonStyle::plain, [&browser] { browser.load(QuorvelRoute::agent); });
  chat->add_css_class("new-chat");
  setAccessibleName(*chat, "+ New chat");
  return padded(20, 0, stretched(chat));
}

Gtk::Widget* statusCard() {
  auto* heading =
      hstack(defaultSpacing, {text("LIVE BACKEND", {TextStyle::caption, FontWeight::black, TextColor::green}),
                              hspacer(), Gtk::make_managed<StatusPill>("WebKit", AccentTone::green, true)});
  auto* sentence =
      text("This app is connected to " + std::string(serviceHost) +
               ", so sign-in, sessions, billing, connectors, and the agent workspace run through the "
               "live service.",
           {TextStyle::caption, FontWeight::semibold, TextColor::secondaryInk});
  auto* card = vstack(0, {padded(14, stretched(vstack(8, {heading, sentence})))});
  card->add_css_class("panel-raised");
  card->add_css_class("strongly-outlined");
  return padded({.trailing = 20, .bottom = 18, .leading = 20}, card);
}

/// As high as its content where there is room; with large text in a low window it scrolls.
Gtk::Widget* scrolled(Gtk::Widget* content) {
  auto* scroller = Gtk::make_managed<Gtk::ScrolledWindow>();
  scroller->set_policy(Gtk::PolicyType::NEVER, Gtk::PolicyType::AUTOMATIC);
  scroller->set_propagate_natural_height(true);
  scroller->set_child(*content);
  return stretched(scroller);
}

} // namespace

DesktopClientSidebar::DesktopClientSidebar(DesktopBrowserModel& browser) : VStack(18), browser_(browser) {
  add_css_class("client-sidebar");
  add({header(), newChatButton(browser), scrolled(destinations()), vspacer(), statusCard()});
  observe(browser, *this, &DesktopClientSidebar::refresh);
}

Gtk::Widget* DesktopClientSidebar::destinations() {
  auto* caption = text("Live app", {TextStyle::caption, FontWeight::black, TextColor::muted});
  auto* list = vstack(8, {padded(20, 0, caption)});
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
    row->show(browser_.isShowing(route));
}

} // namespace quorvel
