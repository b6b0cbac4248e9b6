#pragma once

#include "layout/Container.h"

namespace quorvel {

/// Cells in as many equal columns as the width allows, each at least `minimumColumnWidth` points wide and
/// `spacing` points from the next; rows stand the same `spacing` apart.
///
/// The count of columns follows from the width alone: columns that no cell needs stay empty, and there is
/// always one column, however narrow. Only where a cell cannot do with the minimum (a long word in large
/// text) are all columns as wide as that cell needs, so that none overlaps the next. A cell fills its column,
/// keeps its natural height and stands in the middle of its row. The cells are the grid's child widgets in
/// order.
class AdaptiveGrid : public Container {
 public:
  AdaptiveGrid(int minimumColumnWidth, int spacing);

  /// How many columns a grid of this width has.
  int columnCount(int width) const;

 protected:
  void measure_vfunc(Gtk::Orientation orientation, int forSize, int& minimum, int& natural,
                     int& minimumBaseline, int& naturalBaseline) const override;
  void size_allocate_vfunc(int width, int height, int baseline) override;

 private:
  template <class PlaceRow>
  int forEachRow(int width, const PlaceRow& placeRow) const;
  int leastColumnWidth() const;

  int minimumColumnWidth_;
  int spacing_;
};

} // namespace quorvel
