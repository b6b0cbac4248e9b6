#include "console/BrowserWorkspaceView.h"

#include "brand/SectionHeader.h"
#include "brand/StatusPill.h"
#include "brand/cssClass.h"
#include "brand/surfaces.h"
#include "brand/text.h"
#include "layout/Frame.h"

namespace quorvel {
namespace {

Gtk::Widget* windowButton(const char* kind) {
  auto* button = disc("window-button", 11);
  button->add_css_class(kind);
  return button;
}

struct BrowserSideItem {
  const char* title;
  const char* count;
  bool active;
};

Gtk::Widget* sideItem(const BrowserSideItem& item) {
  constexpr TextLook look{TextStyle::caption, FontWeight::semibold};
  auto* row = hstack(defaultSpacing, {text(item.title, look), hspacer()});
  if (*item.count)
    row->add({text(item.count, look)});
  auto* capsule = surface("browser-side-item", padded(10, 7, row));
  setCssClass(*capsule, "active", item.active);
  return capsule;
}

Gtk::Widget* sidebar() {
  auto* folders = vstack(12, {text("Gmail", {TextStyle::headline}), sideItem({"Inbox", "1,323", true}),
                              sideItem({"Starred", "", false}), sideItem({"Sent", "", false}),
                              sideItem({"Drafts", "8", false}), vspacer()});
  auto* column = Gtk::make_managed<Frame>(Frame::Size{.minimumWidth = 130}, *folders);
  column->set_hexpand(false);
  return surface("browser-sidebar", padded(14, column));
}

struct BrowserMessage {
  const char* sender;
  const char* subject;
  const char* detail;
  bool active;
};

Gtk::Widget* messageRow(const BrowserMessage& message) {
  auto* texts = vstack(2, {text(message.sender, {TextStyle::caption, FontWeight::bold}),
                           text(message.subject, {TextStyle::callout, FontWeight::medium}),
                           text(message.detail, {TextStyle::caption, {}, TextColor::dimmed})});
  auto* content = hstack(10, {disc("browser-message-dot", 9), texts, hspacer()});
  auto* row = surface("browser-message", padded(11, content));
  setCssClass(*row, "active", message.active);
  return row;
}

Gtk::Widget* searchField() {
  auto* hint = text("Search mail", {TextStyle::callout, {}, TextColor::dimmed});
  return surface("browser-field", padded(10, stretched(hint)));
}

Gtk::Widget* heldDraft() {
  auto* draft =
      vstack(8, {text("Held draft", {TextStyle::caption, FontWeight::black, TextColor::green}),
                 text("Thanks for checking in. I confirmed the fulfillment note and the updated delivery "
                      "window is ready below.",
                      {TextStyle::callout})});
  return surface("browser-draft", padded(14, draft));
}

Gtk::Widget* messageColumn() {
  return padded(
      14,
      vstack(10,
             {searchField(),
              messageRow(
                  {"Customer Desk", "Order update request", "Can you confirm when this will arrive?", true}),
              messageRow({"Storefront Orders", "New storefront sale", "Review fulfillment by Jun 9.", false}),
              messageRow({"Weekly campaign report", "Retargeting audiences", "Ready for review.", false}),
              messageRow({"Invoice exception", "Past due invoices", "Three invoices moved past due.", false}),
              vspacer(), heldDraft()}));
}

Gtk::Widget* windowChrome() {
  auto* host = text("mail.example.com", {TextStyle::caption, FontWeight::medium, TextColor::dimmed});
  host->set_xalign(0.5);
  return surface("browser-chrome",
                 padded(12, hstack(8, {windowButton("close"), windowButton("minimise"), windowButton("zoom"),
                                       surface("browser-field", padded(0, 7, stretched(host)))})));
}

Gtk::Widget* browserMock() {
  auto* body = hstack(0, {sidebar(), messageColumn()});
  body->set_size_request(-1, 430);
  auto* mock = vstack(0, {windowChrome(), body});
  mock->add_css_class("browser-mock");
  mock->set_overflow(Gtk::Overflow::HIDDEN);
  return mock;
}

Gtk::Widget* noteCard(const Glib::ustring& title, const Glib::ustring& value, const Glib::ustring& detail,
                      AccentTone tone) {
  return quorvelCard(stretched(vstack(
      10, {Gtk::make_managed<StatusPill>(title, tone), text(value, {TextStyle::title3, FontWeight::semibold}),
           text(detail, {TextStyle::callout, {}, TextColor::secondaryInk})})));
}

Gtk::Widget* noteColumn() {
  return vstack(
      18,
      {noteCard("Observed page", "Gmail customer thread",
                "Order update request is selected and source context is visible.", AccentTone::blue),
       noteCard("Assigned helper", "Order Management Agent",
                "Draft reply is held because the action is customer-facing.", AccentTone::green),
       noteCard("Approval", "Required", "Nothing sends until the owner approves the reply batch.",
                AccentTone::gold)},
      HorizontalAlignment::centre);
}

} // namespace

BrowserWorkspaceView::BrowserWorkspaceView() : VStack(22) {
  auto* mock = Gtk::make_managed<Frame>(Frame::Size{.minimumWidth = 520}, *browserMock());
  mock->set_vexpand(false);
  auto* notes = Gtk::make_managed<Frame>(Frame::Size{.minimumWidth = 300}, *noteColumn());
  notes->set_hexpand(false);
  add({Gtk::make_managed<SectionHeader>(
           "Browser workspace", "Page context beside the agent",
           "The desktop app keeps the viewed page, agent notes, screenshots, and "
           "approval state in the same workspace."),
       hstack(18, {stretched(mock), notes}, VerticalAlignment::top)});
}

} // namespace quorvel
