#include "brand/surfaces.h"

#include "brand/cssClass.h"
#include "layout/accessible.h"
#include "layout/stacks.h"

namespace quorvel {

Gtk::Widget* surface(const std::string& cssClass, Gtk::Widget* content) {
  auto* ground = Gtk::make_managed<HStack>(0, VerticalAlignment::fill);
  ground->add_css_class(cssClass);
  // The content fills its ground, but the ground is as keen on width as the content was.
  ground->set_hexpand(content->compute_expand(Gtk::Orientation::HORIZONTAL));
  content->set_hexpand(true);
  ground->add({content});
  return ground;
}

Gtk::Widget* disc(const std::string& cssClass, int diameter) {
  auto* circle = Gtk::make_managed<Gtk::Box>();
  circle->add_css_class(cssClass);
  circle->set_size_request(diameter, diameter);
  circle->set_halign(Gtk::Align::CENTER);
  circle->set_valign(Gtk::Align::CENTER);
  return decorative(circle);
}

Gtk::Widget* quorvelCard(Gtk::Widget* content, int padding) {
  return surface("quorvel-card", padded(padding, content));
}

Gtk::Widget* raisedPanel(Outline outline, Gtk::Widget* content) {
  auto* panel = surface("raised-panel", content);
  setLook(*panel, outline);
  return panel;
}

} // namespace quorvel
