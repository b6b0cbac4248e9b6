#pragma once

#include <gtkmm/widget.h>

namespace quorvel {

/// The name that assistive technology reads for a widget. The first time, the widget is in no window yet.
void setAccessibleName(Gtk::Widget& widget, const Glib::ustring& name);
/// What assistive technology may add to the name.
void setAccessibleDescription(Gtk::Widget& widget, const Glib::ustring& description);
/// Leaves the widget, which is in no window yet, to the eye, where another one says the same to assistive
/// technology, or it says nothing.
void setAccessiblyHidden(Gtk::Widget& widget);
/// Whether assistive technology calls the widget the chosen one of its group.
void setAccessibleSelected(Gtk::Widget& widget, bool isSelected);

/// The same widget, which is there for the eye alone.
template <class Widget>
Widget* decorative(Widget* widget) {
  setAccessiblyHidden(*widget);
  return widget;
}

} // namespace quorvel
