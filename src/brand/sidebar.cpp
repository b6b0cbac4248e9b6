#include "brand/sidebar.h"

#include "brand/BrandMark.h"
#include "brand/StatusPill.h"
#include "brand/surfaces.h"
#include "layout/accessible.h"
#include "layout/stacks.h"

namespace quorvel {

Gtk::Widget* sidebarHeader(const SidebarHeader& header) {
  constexpr TextLook subtitle{TextStyle::caption, FontWeight::semibold, TextColor::secondaryInk};
  return hstack(12, {Gtk::make_managed<BrandMark>(header.markSize),
                     vstack(2, {text("Quorvel", header.name), text(header.subtitle, subtitle)}), hspacer()});
}

Gtk::Widget* newChatButton(FontWeight weight, Action action) {
  constexpr auto title = "+ New chat";
  auto* label = text(title, {TextStyle::headline, weight, TextColor::black});
  label->set_halign(Gtk::Align::CENTER);
  auto* result = button(padded(0, 13, label), ButtonStyle::plain, std::move(action));
  result->add_css_class("new-chat");
  setAccessibleName(*result, title);
  return stretched(result);
}

Gtk::Widget* sidebarCaption(const Glib::ustring& caption, int padding) {
  return padded(padding, 0, text(caption, {TextStyle::caption, FontWeight::black, TextColor::muted}));
}

Gtk::Widget* sidebarStatusCard(const Glib::ustring& caption, const Glib::ustring& pill,
                               const Glib::ustring& sentence) {
  auto* heading = hstack(defaultSpacing,
                         {text(caption, {TextStyle::caption, FontWeight::black, TextColor::green}), hspacer(),
                          Gtk::make_managed<StatusPill>(pill, AccentTone::green, PillStyle::prominent)});
  auto* note = text(sentence, {TextStyle::caption, FontWeight::semibold, TextColor::secondaryInk});
  return raisedPanel(Outline::strongLine, padded(14, vstack(8, {heading, note})));
}

} // namespace quorvel
