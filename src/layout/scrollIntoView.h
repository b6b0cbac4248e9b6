#pragma once

#include <gtkmm/widget.h>

namespace quorvel {

/// Scrolls the area that a widget stands in up or down so far that all of it is in sight, `margin` points
/// from the edges where there is so much. Does nothing before the first layout.
void scrollIntoView(Gtk::Widget& widget, int margin);

} // namespace quorvel
