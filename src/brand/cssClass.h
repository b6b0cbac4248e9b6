#pragma once

#include "vocabulary/Enumeration.h"

#include <gtkmm/widget.h>
#include <string>

namespace quorvel {

/// Gives a widget a style-sheet class, or takes it away.
void setCssClass(Gtk::Widget& widget, const Glib::ustring& name, bool isOn);

/// Gives a widget the class of one case of a look, in place of that of any other. The raw values of the look
/// are the names of its classes.
template <class Look>
void setLook(Gtk::Widget& widget, Look look) {
  for (const auto each : allCases<Look>())
    setCssClass(widget, std::string(rawValue(each)), each == look);
}

} // namespace quorvel
