#include "client/DesktopClientNavRow.h"

#include "brand/symbol.h"
#include "layout/Frame.h"
#include "layout/stacks.h"

namespace quorvel {

DesktopClientNavRow::DesktopClientNavRow(const Glib::ustring& title, const Glib::ustring& subtitle,
                                         std::string_view symbolName, Action action)
    : symbol_(symbol(symbolName, {TextStyle::body, FontWeight::semibold})),
      title_(text(title, {TextStyle::body, FontWeight::bold})) {
  auto* detail = text(subtitle, {TextStyle::caption, FontWeight::semibold, TextColor::muted});
  auto* label = hstack(12, {framed({.width = 22}, symbol_), vstack(2, {title_, detail}), hspacer()});
  button_ = button(padded(12, 10, label), ButtonStyle::plain, std::move(action));
  button_->add_css_class("client-nav-row");
  setAccessibleName(*button_, title);
  setAccessibleDescription(*button_, subtitle);
  append(*padded(12, 0, stretched(button_)));
  show(false);
}

void DesktopClientNavRow::show(bool isSelected) {
  setColor(*symbol_, isSelected ? TextColor::green : TextColor::muted);
  setColor(*title_, isSelected ? TextColor::ink : TextColor::secondaryInk);
  setAccessibleSelected(*button_, isSelected);
  if (isSelected)
    button_->add_css_class("selected");
  else
    button_->remove_css_class("selected");
}

} // namespace quorvel
