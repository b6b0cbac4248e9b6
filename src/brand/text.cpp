#include "brand/text.h"

#include "brand/cssClass.h"

#include <gtkmm/tooltip.h>

namespace quorvel {
namespace {

/// Shows the whole of a text on hover where it had to be shortened.
Gtk::Label* wholeOnHover(Gtk::Label* label) {
  label->set_has_tooltip(true);
  const auto onQuery = [label](int, int, bool, const Glib::RefPtr<Gtk::Tooltip>& tooltip) {
    if (!label->get_layout()->is_ellipsized())
      return false;
    tooltip->set_text(label->get_text());
    return true;
  };
  label->signal_query_tooltip().connect(onQuery, false);
  return label;
}

} // namespace

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
  return where == Pango::EllipsizeMode::END ? wholeOnHover(label) : label;
}

Gtk::Label* text(const Glib::ustring& content, const TextLook& look, int lines) {
  auto* label = text(content, look);
  label->set_lines(lines);
  label->set_ellipsize(Pango::EllipsizeMode::END);
  return wholeOnHover(label);
}

void applyLook(Gtk::Widget& widget, const TextLook& look) {
  setLook(widget, look.style);
  if (look.weight)
    setLook(widget, *look.weight);
  setLook(widget, look.design);
  setColor(widget, look.color);
}

void setColor(Gtk::Widget& widget, TextColor color) {
  setLook(widget, color);
}

} // namespace quorvel
