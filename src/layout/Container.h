#pragma once

#include <gtkmm/widget.h>
#include <vector>

namespace quorvel {

/// The common ground of the widgets that arrange children in a way of their own: heights follow from widths,
/// and the children, managed widgets, are released when the container goes.
class Container : public Gtk::Widget {
 public:
  ~Container() override;

  /// Takes over a managed widget as the last child.
  void append(Gtk::Widget& child);
  /// Puts a managed widget behind `previous`, or first where that is nothing; moves it where it is a child.
  void place(Gtk::Widget& child, Gtk::Widget* previous);

 protected:
  Container();
  Gtk::SizeRequestMode get_request_mode_vfunc() const override;

 private:
  void releaseChildren();
};

/// The children that take part in a widget's layout, in order.
std::vector<Gtk::Widget*> visibleChildren(const Gtk::Widget& parent);

/// Makes a managed widget the child of `parent` that follows `previous`, or the first where that is nothing.
void insertAfter(Gtk::Widget& parent, Gtk::Widget& child, Gtk::Widget* previous);

/// Gives a child its place in a parent that is `parentWidth` points wide. The place is counted from the edge
/// at which lines of text begin, which is the right one on desktops that are read from there.
void allocateFromLeadingEdge(Gtk::Widget& child, Gtk::Allocation place, int parentWidth);

/// What a widget asks for in one direction, in points.
struct Request {
  int minimum = 0, natural = 0;
};
Request widthRequest(const Gtk::Widget& widget);
/// The height of the widget when it is given this width (-1: when it may choose).
Request heightRequest(const Gtk::Widget& widget, int width);

} // namespace quorvel
