#include "brand/text.h"

#include <string>

namespace quorvel {

Gtk::Label* text(const Glib::ustring& content, const TextLook& look) {
  auto* label = Gtk::make_managed<Gtk::Label>(content);
  label->set_xalign(0);
  label->set_wrap(true);
  label->set_natural_wrap_mode(Gtk::NaturalWrapMode::NONE);
  applyLook(*label, look);
  return label;
}

Gtk::Label* singleLine(const Glib::ustring& content, const TextLook& look, Pango::EllipsizeMode where) {
  auto* label = Gtk::make_managed<Gtk::Label>(content);
  label->set_xalign(0);
  label->set_single_line_mode(true);
  label->set_ellipsize(where);
  applyLook(*label, look);
  return label;
}

Gtk::Label* text(const Glib::ustring& content, const TextLook& look, int lines) {
  auto* label = text(content, look);
  label->set_lines(lines);
  label->set_ellipsize(Pango::EllipsizeMode::END);
  return label;
}

void applyLook(Gtk::Widget& widget, const TextLook& look) {
  widget.add_css_class(std::string(cssClass(look.style)));
  if (look.weight)
    widget.add_css_class(std::string(cssClass(*look.weight)));
  if (look.design == FontDesign::rounded)
    widget.add_css_class("rounded");
  setColor(widget, look.color);
}

void setColor(Gtk::Widget& widget, TextColor color) {
  for (const auto each : {TextColor::standard, TextColor::dimmed, TextColor::ink, TextColor::secondaryInk,
                          TextColor::muted, TextColor::green, TextColor::black, TextColor::tone})
    widget.remove_css_class(std::string(cssClass(each)));
  widget.add_css_class(std::string(cssClass(color)));
}

} // namespace quorvel
