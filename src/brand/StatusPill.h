#pragma once

#include "vocabulary/AccentTone.h"

#include <gtkmm/box.h>
#include <gtkmm/label.h>

namespace quorvel {

/// A capsule with a short text in the colour of a tone: faintly tinted, or solid with dark text when
/// prominent.
class StatusPill : public Gtk::Box {
 public:
  StatusPill(const Glib::ustring& title, AccentTone tone, bool isProminent = false);

  void show(const Glib::ustring& title, AccentTone tone, bool isProminent = false);

 private:
  Gtk::Label* title_;
};

} // namespace quorvel
