#include "brand/tone.h"

#include <gtkmm/box.h>
#include <string>

namespace quorvel {
namespace {

std::string toneClass(AccentTone tone) {
  return "tone-" + std::string(rawValue(tone));
}

} // namespace

void setTone(Gtk::Widget& widget, AccentTone tone) {
  for (const auto each : allCases<AccentTone>())
    if (each != tone)
      widget.remove_css_class(toneClass(each));
  widget.add_css_class(toneClass(tone));
}

Gtk::Widget* dot(AccentTone tone, int diameter) {
  auto* circle = Gtk::make_managed<Gtk::Box>();
  circle->add_css_class("dot");
  circle->set_size_request(diameter, diameter);
  circle->set_halign(Gtk::Align::CENTER);
  circle->set_valign(Gtk::Align::CENTER);
  setTone(*circle, tone);
  return circle;
}

} // namespace quorvel
