#include "AdaptiveGrid.h"

#include <algorithm>
#include <span>

namespace quorvel {
AdaptiveGrid::AdaptiveGrid(int minimumColumnWidth, int spacing)
    : minimumColumnWidth_(minimumColumnWidth), spacing_(spacing) {
  set_hexpand(true);
}

int AdaptiveGrid::columnCount(int width) const {
  return std::max(1, (width + spacing_) / (leastColumnWidth() + spacing_));
}

int AdaptiveGrid::leastColumnWidth() const {
  int least = minimumColumnWidth_;
  for (const auto* cell : visibleChildren())
    least = std::max(least, widthRequest(*cell).minimum);
  return least;
}

int AdaptiveGrid::columnWidth(int width) const {
  const int count = columnCount(width);
  return (width - (count - 1) * spacing_) / count;
}

/// Calls `placeRow(cells, y, height)` for every row and returns the height of all rows together.
template <class PlaceRow>
int AdaptiveGrid::forEachRow(int width, PlaceRow&& placeRow) const {
  const auto cells = visibleChildren();
  const auto perRow = static_cast<std::size_t>(columnCount(width));
  const int cellWidth = columnWidth(width);
  int y = 0;
  for (std::size_t first = 0; first < cells.size(); first += perRow) {
    const auto row = std::span(cells).subspan(first, std::min(perRow, cells.size() - first));
    int height = 0;
    for (const auto* cell : row)
      height = std::max(height, heightRequest(*cell, cellWidth).natural);
    placeRow(row, y, height);
    y += height + spacing_;
  }
  return std::max(0, y - spacing_);
}

void AdaptiveGrid::measure_vfunc(Gtk::Orientation orientation, int forSize, int& minimum, int& natural,
                                 int& minimumBaseline, int& naturalBaseline) const {
  minimumBaseline = naturalBaseline = -1;
  if (orientation == Gtk::Orientation::HORIZONTAL) {
    minimum = natural = leastColumnWidth();
    return;
  }
  const int width = forSize < 0 ? leastColumnWidth() : forSize;
  minimum = natural = forEachRow(width, [](const auto&, int, int) {});
}

void AdaptiveGrid::size_allocate_vfunc(int width, int, int) {
  const int cellWidth = columnWidth(width);
  forEachRow(width, [&](const auto& row, int y, int height) {
    int x = 0;
    for (auto* cell : row) {
      const int cellHeight = heightRequest(*cell, cellWidth).natural;
      cell->size_allocate(Gtk::Allocation(x, y + (height - cellHeight) / 2, cellWidth, cellHeight), -1);
      x += cellWidth + spacing_;
    }
  });
}

} // namespace quorvel
