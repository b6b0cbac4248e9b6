#include "brand/buttons.h"

#include "brand/cssClass.h"
#include "brand/symbol.h"
#include "layout/accessible.h"
#include "layout/stacks.h"

namespace quorvel {

Gtk::Button* button(Gtk::Widget* label, ButtonStyle style, Action action) {
  auto* result = Gtk::make_managed<Gtk::Button>();
  result->set_child(*label);
  result->add_css_class("quorvel-button");
  setLook(*result, style);
  if (action)
    result->signal_clicked().connect(action);
  return result;
}

Gtk::Button* button(const Glib::ustring& title, ButtonStyle style, Action action) {
  auto* result = button(Gtk::make_managed<Gtk::Label>(title), style, std::move(action));
  if (!title.empty()) // or it follows the label that it will get
    setAccessibleName(*result, title);
  return result;
}

Gtk::Button* button(const Glib::ustring& title, std::string_view symbolName, ButtonStyle style,
                    Action action) {
  auto* label =
      hstack(6, {symbol(symbolName, {.style = TextStyle::callout}), Gtk::make_managed<Gtk::Label>(title)});
  label->set_halign(Gtk::Align::CENTER);
  auto* result = button(label, style, std::move(action));
  setAccessibleName(*result, title);
  return result;
}

Gtk::Button* symbolButton(std::string_view symbolName, const Glib::ustring& help, ButtonStyle style,
                          Action action) {
  auto* result = button(symbol(symbolName, {.style = TextStyle::callout}), style, std::move(action));
  result->set_tooltip_text(help);
  setAccessibleName(*result, help);
  return result;
}

} // namespace quorvel
