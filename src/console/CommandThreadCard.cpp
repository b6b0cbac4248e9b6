#include "console/CommandThreadCard.h"

#include "brand/StatusPill.h"
#include "brand/cssClass.h"
#include "brand/surfaces.h"
#include "brand/symbol.h"
#include "brand/tone.h"
#include "layout/accessible.h"

#include <gtkmm/entry.h>
#include <optional>

namespace quorvel {
namespace {

Gtk::Widget* header() {
  auto* title = vstack(3, {text("Chats", {TextStyle::title2, FontWeight::bold}),
                           text("Ask, monitor, approve.",
                                {TextStyle::caption, FontWeight::semibold, TextColor::secondaryInk})});
  return hstack(
      defaultSpacing,
      {title, hspacer(), Gtk::make_managed<StatusPill>("Live", AccentTone::green, PillStyle::prominent)});
}

struct Message {
  const char* role;
  const char* text;
  std::optional<const char*> detail = {};
  bool isUser = false;
  AccentTone tone = AccentTone::blue;
};

Gtk::Widget* bubble(const Message& message) {
  auto* role = text(message.role, {TextStyle::caption, FontWeight::black,
                                   message.isUser ? TextColor::ink : TextColor::tone});
  auto* lines = vstack(5, {toned(message.tone, role),
                           text(message.text, {TextStyle::title3, FontWeight::bold, TextColor::ink})});
  if (message.detail)
    lines->add({text(*message.detail, {TextStyle::caption, FontWeight::semibold, TextColor::secondaryInk})});
  auto* bubble = surface("chat-bubble", padded(16, lines));
  setCssClass(*bubble, "from-user", message.isUser);
  return bubble;
}

Gtk::Widget* chatBubble(const Message& message) {
  auto* gap = hspacer(72);
  return message.isUser ? hstack(defaultSpacing, {gap, bubble(message)})
                        : hstack(defaultSpacing, {bubble(message), gap});
}

Gtk::Widget* approvalSnippet() {
  auto* notice =
      vstack(6, {text("APPROVAL READY", {TextStyle::caption, FontWeight::black, TextColor::green}),
                 text("Send 3 customer updates", {TextStyle::headline, FontWeight::bold, TextColor::ink})});
  auto* review = text("Review", {TextStyle::callout, FontWeight::black, TextColor::black});
  auto* plate = surface("review-plate", padded(18, 10, review));
  return raisedPanel(Outline::strongLine, padded(16, hstack(14, {notice, hspacer(), plate})));
}

Gtk::Widget* thread() {
  return vstack(
      12, {chatBubble({"MAIN AGENT", "What should move today?", "Ask, monitor, approve."}),
           chatBubble({.role = "YOU", .text = "Show me anything waiting for approval.", .isUser = true}),
           chatBubble({.role = "ORDER AGENT",
                       .text = "Three order replies are drafted.",
                       .detail = "Nothing sends until you approve.",
                       .tone = AccentTone::green}),
           approvalSnippet()});
}

Gtk::Widget* composer(Action send) {
  auto* draft = Gtk::make_managed<Gtk::Entry>();
  draft->set_text("Ask Quorvel to review open customer updates");
  draft->set_placeholder_text("Message Quorvel");
  draft->add_css_class("draft");
  setAccessibleName(*draft, "Message Quorvel");
  auto* sendButton = button(symbol("arrow.up", {TextStyle::headline, FontWeight::bold}),
                            ButtonStyle::prominent, std::move(send));
  sendButton->add_css_class("send");
  sendButton->set_tooltip_text("Send request");
  setAccessibleName(*sendButton, "Send request");
  return hstack(10, {stretched(draft), sendButton});
}

} // namespace

CommandThreadCard::CommandThreadCard(Action send) : VStack(0) {
  add({quorvelCard(vstack(16, {header(), stretched(thread()), composer(std::move(send))}))});
}

} // namespace quorvel
