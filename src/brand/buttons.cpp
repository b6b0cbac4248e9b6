#include "brand/buttons.h"

#include "brand/cssClass.h"
#include "brand/symbol.h"
#include "layout/stacks.h"

namespace quorvel {

Gtk::Button* button(Gtk::Widget* label, ButtonStyle style, Action action) {
  auto* result = Gtk::make_managed<Gtk::Button>();
  result->set_child(*label);
  result->add_css_class("quorvel-button");
  setLook(*result, style);
  result->signal_clicked().connect(action);
  return result;
}

Gtk::Button* button(const Glib::ustring& title, ButtonStyle style, Action action) {
  return button(Gtk::make_managed<Gtk::Label>(title), style, std::move(action));
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

void setAccessibleName(Gtk::Widget& widget, const Glib::ustring& name) {
  gtk_accessible_update_property(GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_PROPERTY_LABEL, name.c_str(),
                                 -1);
}

void setAccessibleDescription(Gtk::Widget& widget, const Glib::ustring& description) {
  gtk_accessible_update_property(GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_PROPERTY_DESCRIPTION,
                                 description.c_str(), -1);
}

void setAccessiblyHidden(Gtk::Widget& widget) {
  gtk_accessible_update_state(GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_STATE_HIDDEN, TRUE, -1);
}

void setAccessibleSelected(Gtk::Widget& widget, bool isSelected) {
  gtk_accessible_update_state(GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_STATE_SELECTED, isSelected, -1);
}

} // namespace quorvel
