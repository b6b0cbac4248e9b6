#pragma once

#include "vocabulary/Enumeration.h"

#include <functional>
#include <gtkmm/button.h>

namespace quorvel {

/// `plain` has no chrome, `bordered` a quiet frame, `prominent` the filled accent colour, `link` reads as
/// text.
enum class ButtonStyle { plain, bordered, prominent, link };

template <>
struct EnumerationTable<ButtonStyle> {
  struct Row {
    std::string_view rawValue; ///< the style-sheet class
  };
  static constexpr PerCase<ButtonStyle, Row> rows{Row{"button-plain"}, Row{"button-bordered"},
                                                  Row{"button-prominent"}, Row{"button-link"}};
};

/// What a press does; where it is empty, nothing.
using Action = std::function<void()>;

/// A button with a text. Managed.
Gtk::Button* button(const Glib::ustring& title, ButtonStyle style, Action action);

/// A button with a symbol before its text. Managed.
Gtk::Button* button(const Glib::ustring& title, std::string_view symbolName, ButtonStyle style,
                    Action action);

/// A button with a symbol alone; `help` is its tooltip and its accessible name. Managed.
Gtk::Button* symbolButton(std::string_view symbolName, const Glib::ustring& help, ButtonStyle style,
                          Action action);

/// A button around any label, which is laid out over its whole width. Managed.
Gtk::Button* button(Gtk::Widget* label, ButtonStyle style, Action action);

} // namespace quorvel
