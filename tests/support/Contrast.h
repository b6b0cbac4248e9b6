#pragma once

#include "brand/Color.h"

#include <gtkmm/widget.h>
#include <string>
#include <vector>

namespace quorvel::tests {

/// What an eye sees of a colour that lies over an opaque one.
Color over(const Color& upper, const Color& lower);
/// How well a colour, which may let something through, is told from its ground: from 1 to 21.
double contrast(const Color& mark, const Color& ground);

/// Each text and symbol of a window or a menu that nobody can read, with its contrast: it is hardly told from
/// what it stands on. What is disabled is left out.
std::vector<std::string> illegibleParts(Gtk::Widget& root);

} // namespace quorvel::tests
