#pragma once

#include "layout/Container.h"

#include <gtkmm/layoutmanager.h>
#include <vector>

namespace quorvel {

/// Children side by side, `spacing` points apart, in the direction of the writing.
///
/// What the toolkit's own box does, at a fraction of its cost: to tell how high a row is, the box tries
/// dozens of widths on every text in it that wraps, and this layout gives each the one width it will have.
class RowLayout : public Gtk::LayoutManager {
 public:
  static Glib::RefPtr<RowLayout> create(int spacing);

  /// From now on every child has the same width, whatever it asks for beyond its minimum.
  void setEqualWidths();

 protected:
  Gtk::SizeRequestMode get_request_mode_vfunc(const Gtk::Widget& row) const override;
  void measure_vfunc(const Gtk::Widget& row, Gtk::Orientation orientation, int forSize, int& minimum,
                     int& natural, int& minimumBaseline, int& naturalBaseline) const override;
  void allocate_vfunc(const Gtk::Widget& row, int width, int height, int baseline) override;

 private:
  using Members = std::vector<Gtk::Widget*>;

  explicit RowLayout(int spacing);
  Request totalWidth(const Members& members) const;
  Request greatestHeight(const Members& members, int available) const;
  std::vector<int> widths(const Members& members, int available) const;

  int spacing_;
  bool areWidthsEqual_ = false;
};

/// The width of each member of a row that is `available` points wide: its natural width as far as there is
/// room, and a share of what is left where it expands.
std::vector<int> rowWidths(const std::vector<Gtk::Widget*>& members, int spacing, int available);

} // namespace quorvel
