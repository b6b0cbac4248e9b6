#pragma once

#include <gtkmm/widget.h>

namespace quorvel {

/// Has the entries of all menus below a widget say their texts to assistive technology, whenever a menu is
/// opened. GTK 4.18 refers to a label for that, and then says nothing.
void nameEntries(Gtk::Widget& menus);

} // namespace quorvel
