#pragma once

#include "vocabulary/Enumeration.h"

#include <gtkmm/widget.h>
#include <string>

namespace quorvel {

/// The content on a ground of its own (a capsule, a plate, a tinted panel), as its style-sheet class draws
/// it. The content's margins become padding; the surface grows where the content does. Managed.
Gtk::Widget* surface(const std::string& cssClass, Gtk::Widget* content);

/// A filled circle of this diameter, in points, as its style-sheet class draws it. Managed.
Gtk::Widget* disc(const std::string& cssClass, int diameter);

/// The framed, raised look of a console panel: `padding` points around the content, a `panel` fill with
/// rounded corners, a `line` outline and a soft shadow below. Managed.
Gtk::Widget* quorvelCard(Gtk::Widget* content, int padding = 18);

/// The two strengths of an outline.
enum class Outline { line, strongLine };

template <>
struct EnumerationTable<Outline> {
  struct Row {
    std::string_view rawValue; ///< the style-sheet class
  };
  static constexpr PerCase<Outline, Row> rows{Row{"line-outline"}, Row{"strong-line-outline"}};
};

/// A panel inside a card or a column: a `panelRaised` fill with rounded corners and an outline. Managed.
Gtk::Widget* raisedPanel(Outline outline, Gtk::Widget* content);

} // namespace quorvel
