#pragma once

#include "layout/StackLayout.h"

#include <gtkmm/box.h>
#include <gtkmm/scrolledwindow.h>
#include <initializer_list>

namespace quorvel {

/// The gap, in points, of a stack for which nothing else is said, and the least length of a spacer.
inline constexpr int defaultSpacing = 8;

/// Children of a stack in order. Each is a managed widget that the stack takes over.
using Children = std::initializer_list<Gtk::Widget*>;

enum class HorizontalAlignment {
  leading = static_cast<int>(Gtk::Align::START),
  centre = static_cast<int>(Gtk::Align::CENTER),
  trailing = static_cast<int>(Gtk::Align::END)
};
enum class VerticalAlignment {
  fill = static_cast<int>(Gtk::Align::FILL),
  top = static_cast<int>(Gtk::Align::START),
  centre = static_cast<int>(Gtk::Align::CENTER),
  bottom = static_cast<int>(Gtk::Align::END)
};

/// Children one below the other, `spacing` points apart; the box's own properties have no effect, here and in
/// a row. A child that does not expand sideways keeps its natural width and stands at `alignment`; one that
/// does gets the whole width.
class VStack : public Gtk::Box {
 public:
  explicit VStack(int spacing, HorizontalAlignment alignment = HorizontalAlignment::leading);
  void add(Children children);
  /// Puts a managed widget below `previous`, or on top where that is nothing; moves it where it is a child.
  void place(Gtk::Widget& child, Gtk::Widget* previous);
};

/// Children side by side, `spacing` points apart. A child that does not expand downwards keeps its natural
/// height and stands at `alignment`; one that does gets the whole height. Tab follows the row.
class HStack : public Gtk::Box {
 public:
  explicit HStack(int spacing, VerticalAlignment alignment = VerticalAlignment::centre);
  void add(Children children);
  /// Gives every child the same width.
  void setEqualWidths();

 private:
  Glib::RefPtr<StackLayout> layout_;
};

VStack* vstack(int spacing, Children children, HorizontalAlignment alignment = HorizontalAlignment::leading);
HStack* hstack(int spacing, Children children, VerticalAlignment alignment = VerticalAlignment::centre);

/// Takes the room that is left between its neighbours in an `HStack`, and never less than `minimum` points.
Gtk::Widget* hspacer(int minimum = defaultSpacing);
/// Takes the room that is left between its neighbours in a `VStack`, and never less than `minimum` points.
Gtk::Widget* vspacer(int minimum = defaultSpacing);
/// Has an area scroll up and down, and be heard by this name: by key it scrolls too, and where nothing in it
/// takes the focus it does. It shows no bar, which would take room from the content on some machines.
void scrollVertically(Gtk::ScrolledWindow& scroller, const Glib::ustring& name);
/// The content, which is never narrower than it must be, in an area of this name that scrolls it up and
/// down where there is no room for all of it. Managed.
Gtk::ScrolledWindow* verticalScroller(const Glib::ustring& name, Gtk::Widget* content);
/// A horizontal line, one point high, as wide as its stack.
Gtk::Widget* divider();

struct Insets {
  int top = 0, trailing = 0, bottom = 0, leading = 0;
};

/// The same widget with free space around it, outside its background.
template <class Widget>
Widget* padded(Insets insets, Widget* widget) {
  widget->set_margin_top(insets.top);
  widget->set_margin_end(insets.trailing);
  widget->set_margin_bottom(insets.bottom);
  widget->set_margin_start(insets.leading);
  return widget;
}
template <class Widget>
Widget* padded(int horizontal, int vertical, Widget* widget) {
  return padded(Insets{vertical, horizontal, vertical, horizontal}, widget);
}
template <class Widget>
Widget* padded(int everySide, Widget* widget) {
  return padded(everySide, everySide, widget);
}

/// The same widget, taking all the width its stack has.
template <class Widget>
Widget* stretched(Widget* widget) {
  widget->set_hexpand(true);
  return widget;
}

} // namespace quorvel
