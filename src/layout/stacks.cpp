#include "layout/stacks.h"

#include <gtkmm/separator.h>

namespace quorvel {
VStack::VStack(int spacing, HorizontalAlignment alignment)
    : Gtk::Box(Gtk::Orientation::VERTICAL, spacing), alignment_(alignment) {}

void VStack::add(Children children) {
  for (auto* child : children)
    place(*child, get_last_child());
}

void VStack::place(Gtk::Widget& child, Gtk::Widget* previous) {
  if (!child.compute_expand(Gtk::Orientation::HORIZONTAL))
    child.set_halign(static_cast<Gtk::Align>(alignment_));
  insertAfter(*this, child, previous);
}

HStack::HStack(int spacing, VerticalAlignment alignment)
    : Gtk::Box(Gtk::Orientation::HORIZONTAL), alignment_(alignment), layout_(RowLayout::create(spacing)) {
  set_layout_manager(layout_);
}

void HStack::setEqualWidths() {
  layout_->setEqualWidths();
}

void HStack::add(Children children) {
  for (auto* child : children) {
    if (!child->compute_expand(Gtk::Orientation::VERTICAL))
      child->set_valign(static_cast<Gtk::Align>(alignment_));
    append(*child);
  }
}

VStack* vstack(int spacing, Children children, HorizontalAlignment alignment) {
  auto* stack = Gtk::make_managed<VStack>(spacing, alignment);
  stack->add(children);
  return stack;
}

HStack* hstack(int spacing, Children children, VerticalAlignment alignment) {
  auto* stack = Gtk::make_managed<HStack>(spacing, alignment);
  stack->add(children);
  return stack;
}

Gtk::Widget* hspacer(int minimum) {
  auto* spacer = Gtk::make_managed<Gtk::Box>();
  spacer->set_size_request(minimum, -1);
  spacer->set_hexpand(true);
  return spacer;
}

Gtk::Widget* vspacer(int minimum) {
  auto* spacer = Gtk::make_managed<Gtk::Box>();
  spacer->set_size_request(-1, minimum);
  spacer->set_vexpand(true);
  return spacer;
}

Gtk::ScrolledWindow* verticalScroller(Gtk::Widget* content) {
  auto* scroller = Gtk::make_managed<Gtk::ScrolledWindow>();
  scroller->set_policy(Gtk::PolicyType::NEVER, Gtk::PolicyType::AUTOMATIC);
  scroller->set_child(*content);
  return scroller;
}

Gtk::Widget* divider() {
  auto* line = Gtk::make_managed<Gtk::Separator>(Gtk::Orientation::HORIZONTAL);
  line->set_hexpand(true);
  return line;
}

} // namespace quorvel
