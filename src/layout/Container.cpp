#include "layout/Container.h"

namespace quorvel {

// A managed container is disposed of before its destructor runs, any other one in it.
Container::Container() {
  property_accessible_role() = Role::GROUP;
  signal_destroy().connect(sigc::mem_fun(*this, &Container::releaseChildren));
}

Container::~Container() {
  if (gobj())
    releaseChildren();
}

void Container::releaseChildren() {
  while (auto* child = get_first_child())
    child->unparent();
}

void Container::append(Gtk::Widget& child) {
  child.set_parent(*this);
}

void Container::place(Gtk::Widget& child, Gtk::Widget* previous) {
  insertAfter(*this, child, previous);
}

Gtk::SizeRequestMode Container::get_request_mode_vfunc() const {
  return Gtk::SizeRequestMode::HEIGHT_FOR_WIDTH;
}

std::vector<Gtk::Widget*> visibleChildren(const Gtk::Widget& parent) {
  std::vector<Gtk::Widget*> children;
  for (auto* child = const_cast<Gtk::Widget&>(parent).get_first_child(); child;
       child = child->get_next_sibling())
    if (child->should_layout())
      children.push_back(child);
  return children;
}

void insertAfter(Gtk::Widget& parent, Gtk::Widget& child, Gtk::Widget* previous) {
  if (previous)
    child.insert_after(parent, *previous);
  else
    child.insert_at_start(parent);
}

void allocateFromLeadingEdge(Gtk::Widget& child, Gtk::Allocation place, int parentWidth) {
  if (child.get_parent()->get_direction() == Gtk::TextDirection::RTL)
    place.set_x(parentWidth - place.get_x() - place.get_width());
  child.size_allocate(place, -1);
}

Request widthRequest(const Gtk::Widget& widget) {
  Request request;
  int ignored;
  widget.measure(Gtk::Orientation::HORIZONTAL, -1, request.minimum, request.natural, ignored, ignored);
  return request;
}

Request heightRequest(const Gtk::Widget& widget, int width) {
  Request request;
  int ignored;
  widget.measure(Gtk::Orientation::VERTICAL, width, request.minimum, request.natural, ignored, ignored);
  return request;
}

} // namespace quorvel
