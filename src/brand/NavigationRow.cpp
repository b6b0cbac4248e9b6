#include "brand/NavigationRow.h"

#include "brand/cssClass.h"
#include "brand/symbol.h"
#include "layout/Frame.h"
#include "layout/accessible.h"

namespace quorvel {

NavigationRow::NavigationRow(const Glib::ustring& title, const Glib::ustring& subtitle,
                             std::string_view symbolName, Target target, Action action)
    : HStack(0), symbol_(symbol(symbolName, {TextStyle::body, FontWeight::semibold})),
      title_(text(title, {TextStyle::body, FontWeight::bold})) {
  constexpr TextLook detail{TextStyle::caption, FontWeight::semibold, TextColor::muted};
  label_ = hstack(
      12, {framed({.minimumWidth = 22}, symbol_), vstack(2, {title_, text(subtitle, detail)}), hspacer()});
  button_ = button(label_, ButtonStyle::plain, std::move(action));
  panel_ = target == Target::panel ? static_cast<Gtk::Widget*>(button_) : this;
  padded(12, 10, target == Target::panel ? static_cast<Gtk::Widget*>(label_) : button_);
  panel_->add_css_class("navigation-row");
  add({stretched(button_)});
  setAccessibleName(*button_, title);
  describe(subtitle);
  setSelected(false);
}

void NavigationRow::addTrailing(Gtk::Widget* widget) {
  label_->add({widget});
}

void NavigationRow::setSelected(bool isSelected) {
  setColor(*symbol_, isSelected ? TextColor::green : TextColor::muted);
  setColor(*title_, isSelected ? TextColor::ink : TextColor::secondaryInk);
  setAccessibleSelected(*button_, isSelected);
  setCssClass(*panel_, "selected", isSelected);
}

void NavigationRow::describe(const Glib::ustring& description) {
  setAccessibleDescription(*button_, description);
}

} // namespace quorvel
