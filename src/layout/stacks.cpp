#include "layout/stacks.h"

#include "layout/accessible.h"

#include <gtk/gtk.h>
#include <gtkmm/scrollbar.h>
#include <gtkmm/separator.h>

namespace quorvel {
namespace {

/// By itself the toolkit goes from top to bottom, and so to whatever stands half a point higher than its
/// neighbours first.
gboolean focusInOrder(GtkWidget* row, GtkDirectionType direction) {
  const bool isForward = direction == GTK_DIR_TAB_FORWARD;
  if (!isForward && direction != GTK_DIR_TAB_BACKWARD)
    return GTK_WIDGET_CLASS(g_type_class_peek(GTK_TYPE_BOX))->focus(row, direction);
  auto* child = gtk_widget_get_focus_child(row);
  if (!child)
    child = isForward ? gtk_widget_get_first_child(row) : gtk_widget_get_last_child(row);
  while (child && !gtk_widget_child_focus(child, direction))
    child = isForward ? gtk_widget_get_next_sibling(child) : gtk_widget_get_prev_sibling(child);
  return child != nullptr;
}

} // namespace

VStack::VStack(int spacing, HorizontalAlignment alignment) : Gtk::Box(Gtk::Orientation::VERTICAL) {
  set_layout_manager(
      StackLayout::create(Gtk::Orientation::VERTICAL, spacing, static_cast<Gtk::Align>(alignment)));
}

void VStack::add(Children children) {
  for (auto* child : children)
    place(*child, get_last_child());
}

void VStack::place(Gtk::Widget& child, Gtk::Widget* previous) {
  insertAfter(*this, child, previous);
}

HStack::HStack(int spacing, VerticalAlignment alignment)
    : Gtk::Box(Gtk::Orientation::HORIZONTAL),
      layout_(
          StackLayout::create(Gtk::Orientation::HORIZONTAL, spacing, static_cast<Gtk::Align>(alignment))) {
  set_layout_manager(layout_);
  // The class is that of every box made in C++; they all have their children in the order of reading.
  GTK_WIDGET_GET_CLASS(gobj())->focus = focusInOrder;
}

void HStack::setEqualWidths() {
  layout_->setEqualWidths();
}

void HStack::add(Children children) {
  for (auto* child : children)
    append(*child);
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
  return decorative(spacer);
}

Gtk::Widget* vspacer(int minimum) {
  auto* spacer = Gtk::make_managed<Gtk::Box>();
  spacer->set_size_request(-1, minimum);
  spacer->set_vexpand(true);
  return decorative(spacer);
}

void scrollVertically(Gtk::ScrolledWindow& scroller, const Glib::ustring& name) {
  scroller.set_policy(Gtk::PolicyType::NEVER, Gtk::PolicyType::EXTERNAL);
  setAccessibleName(scroller, name);
  for (auto* bar : {scroller.get_hscrollbar(), scroller.get_vscrollbar()})
    setAccessiblyHidden(*bar);
}

Gtk::ScrolledWindow* verticalScroller(const Glib::ustring& name, Gtk::Widget* content) {
  auto* scroller = Gtk::make_managed<Gtk::ScrolledWindow>();
  scroller->set_child(*content);
  scroller->set_propagate_natural_height(true);
  scrollVertically(*scroller, name);
  return scroller;
}

Gtk::Widget* divider() {
  auto* line = Gtk::make_managed<Gtk::Separator>(Gtk::Orientation::HORIZONTAL);
  line->set_hexpand(true);
  return decorative(line);
}

} // namespace quorvel
