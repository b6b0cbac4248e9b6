#pragma once

#include "brand/text.h"

#include <gtkmm/image.h>

namespace quorvel {

/// A symbol of the project, by its name ("lock.fill"), as large and as heavy as text of its look and in its
/// colour. It is decoration: the widget that carries it has the accessible name. Managed.
Gtk::Image* symbol(std::string_view name, const TextLook& look);

/// Shows another symbol in the same place, in the same weight.
void setSymbol(Gtk::Image& image, std::string_view name);

} // namespace quorvel
