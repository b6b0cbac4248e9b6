#pragma once

#include <gtkmm/widget.h>

namespace quorvel {

/// The framed, raised look of a console panel: `padding` points around the content, a `panel` fill with
/// rounded corners, a `line` outline and a soft shadow below. The frame is as large as the content and its
/// padding. Managed.
Gtk::Widget* quorvelCard(Gtk::Widget* content, int padding = 18);

/// The same look for a widget that pads its content itself.
void applyCardStyle(Gtk::Widget& widget);

} // namespace quorvel
