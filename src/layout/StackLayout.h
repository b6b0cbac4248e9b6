#pragma once

#include "layout/Arrangement.h"

#include <gtkmm/layoutmanager.h>

namespace quorvel {

/// Has a widget's children stand in one `Arrangement`.
class StackLayout : public Gtk::LayoutManager {
 public:
  static Glib::RefPtr<StackLayout> create(Gtk::Orientation orientation, int spacing, Gtk::Align alignment);

  /// From now on every child of a row has the same width, whatever it asks for beyond its minimum.
  void setEqualWidths();

 protected:
  Gtk::SizeRequestMode get_request_mode_vfunc(const Gtk::Widget& stack) const override;
  void measure_vfunc(const Gtk::Widget& stack, Gtk::Orientation orientation, int forSize, int& minimum,
                     int& natural, int& minimumBaseline, int& naturalBaseline) const override;
  void allocate_vfunc(const Gtk::Widget& stack, int width, int height, int baseline) override;

 private:
  explicit StackLayout(Arrangement arrangement);
  Arrangement arrangementOf(const Gtk::Widget& stack) const;

  Arrangement arrangement_; // without members
};

} // namespace quorvel
