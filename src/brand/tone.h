#pragma once

#include "vocabulary/AccentTone.h"

#include <gtkmm/widget.h>

namespace quorvel {

/// Tags a widget with a tone in place of the one it had. The tone becomes its current colour, which dots,
/// pills, progress bars and texts of `TextColor::tone` inside it are drawn with.
void setTone(Gtk::Widget& widget, AccentTone tone);

/// The same widget, tagged.
template <class Widget>
Widget* toned(AccentTone tone, Widget* widget) {
  setTone(*widget, tone);
  return widget;
}

/// A filled circle in its tone's colour, `diameter` points across. Managed.
Gtk::Widget* dot(AccentTone tone, int diameter);

} // namespace quorvel
