#include "layout/stacks.h"

#include <gtkmm/separator.h>

namespace quorvel {
namespace {

Gtk::Align align(HorizontalAlignment alignment) {
  switch (alignment) {
  case HorizontalAlignment::leading:
    return Gtk::Align::START;
  case HorizontalAlignment::centre:
    return Gtk::Align::CENTER;
  case HorizontalAlignment::trailing:
    return Gtk::Align::END;
  }
  return Gtk::Align::FILL;
}

Gtk::Align align(VerticalAlignment alignment) {
  switch (alignment) {
  case VerticalAlignment::top:
    return Gtk::Align::START;
  case VerticalAlignment::centre:
    return Gtk::Align::CENTER;
  case VerticalAlignment::bottom:
    return Gtk::Align::END;
  }
  return Gtk::Align::FILL;
}

} // namespace

VStack::VStack(int spacing, HorizontalAlignment alignment)
    : Gtk::Box(Gtk::Orientation::VERTICAL, spacing), alignment_(alignment) {}

void VStack::add(Children children) {
  for (auto* child : children) {
    if (!child->compute_expand(Gtk::Orientation::HORIZONTAL))
      child->set_halign(align(alignment_));
    append(*child);
  }
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
      child->set_valign(align(alignment_));
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

Gtk::Widget* divider() {
  auto* line = Gtk::make_managed<Gtk::Separator>(Gtk::Orientation::HORIZONTAL);
  line->set_hexpand(true);
  return line;
}

} // namespace quorvel
