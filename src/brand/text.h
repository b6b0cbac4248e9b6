#pragma once

#include "brand/Typography.h"

#include <gtkmm/label.h>
#include <optional>

namespace quorvel {

/// How a text looks. Without a weight it has the weight of its style.
struct TextLook {
  TextStyle style = TextStyle::body;
  std::optional<FontWeight> weight = {};
  TextColor color = TextColor::standard;
  FontDesign design = FontDesign::standard;
};

/// A text that wraps where its room is too narrow and is never cut. Managed.
Gtk::Label* text(const Glib::ustring& content, const TextLook& look);

/// A text of one line, shortened with an ellipsis where its room is too narrow; one that is shortened at its
/// end shows all of it on hover. Managed.
Gtk::Label* singleLine(const Glib::ustring& content, const TextLook& look,
                       Pango::EllipsizeMode where = Pango::EllipsizeMode::END);

/// A text that wraps onto `lines` lines at the most and ends in an ellipsis where that is not enough; then
/// all of it is shown on hover. Managed.
Gtk::Label* text(const Glib::ustring& content, const TextLook& look, int lines);

/// Gives any widget (a symbol, an entry) the font and colour of `look`.
void applyLook(Gtk::Widget& widget, const TextLook& look);

/// Replaces the colour of a text or symbol.
void setColor(Gtk::Widget& widget, TextColor color);

} // namespace quorvel
