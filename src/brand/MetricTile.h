#pragma once

#include "layout/stacks.h"
#include "vocabulary/AccentTone.h"

#include <gtkmm/label.h>

namespace quorvel {

/// A framed figure with a label above it and a note below.
class MetricTile : public VStack {
 public:
  MetricTile(const Glib::ustring& title, const Glib::ustring& value, const Glib::ustring& detail,
             AccentTone tone);

  void setValue(const Glib::ustring& value);

 private:
  Gtk::Label* value_;
};

} // namespace quorvel
