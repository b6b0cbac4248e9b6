#pragma once

#include "vocabulary/AccentTone.h"

#include <gtkmm/box.h>
#include <gtkmm/label.h>

namespace quorvel {

/// A plain pill is faintly tinted, a prominent one solid with dark text.
enum class PillStyle { plain, prominent };

template <>
struct EnumerationTable<PillStyle> {
  struct Row {
    std::string_view rawValue; ///< the style-sheet class
  };
  static constexpr PerCase<PillStyle, Row> rows{Row{"pill-plain"}, Row{"pill-prominent"}};
};

/// A capsule with a short text in the colour of a tone.
class StatusPill : public Gtk::Box {
 public:
  StatusPill(const Glib::ustring& title, AccentTone tone, PillStyle style = PillStyle::plain);

  void show(const Glib::ustring& title, AccentTone tone, PillStyle style = PillStyle::plain);

 private:
  Gtk::Label* title_;
};

} // namespace quorvel
