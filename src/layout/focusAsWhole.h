#pragma once

#include <gtkmm/widget.h>

namespace quorvel {

/// Gives the focus to a container as a whole, where a key presses none of the controls in it. Tab leads to
/// the first of them. Once the focus has gone elsewhere, the container is no stop on its way.
void focusAsWhole(Gtk::Widget& container);

} // namespace quorvel
