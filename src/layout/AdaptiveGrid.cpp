#include "layout/AdaptiveGrid.h"

#include "layout/columns.h"

#include <algorithm>
#include <span>

namespace quorvel {
AdaptiveGrid::AdaptiveGrid(int minimumColumnWidth, int spacing)
    : minimumColumnWidth_(minimumColumnWidth), spacing_(spacing) {
  set_hexpand(true);
}

int AdaptiveGrid::columnCount(int width) const {
  return Columns{leastColumnWidth(), spacing_}.count(width);
}

int AdaptiveGrid::leastColumnWidth() const {
  int least = minimumColumnWidth_;
  for (const auto* cell : visibleChildren(*this))
    least = std::max(least, widthRequest(*cell).minimum);
  return least;
}

/// Calls `placeRow(cells, columns, y, height)` for every row and returns the height of all rows together.
template <class PlaceRow>
int AdaptiveGrid::forEachRow(int width, const PlaceRow& placeRow) const {
  const auto cells = visibleChildren(*this);
  const auto perRow = static_cast<std::size_t>(columnCount(width));
  std::vector<Column> columns;
  for (std::size_t i = 0; i < perRow; ++i)
    columns.push_back(columnAt(i, perRow, width, spacing_));
  int y = 0;
  for (std::size_t first = 0; first < cells.size(); first += perRow) {
    const auto row = std::span(cells).subspan(first, std::min(perRow, cells.size() - first));
    int height = 0;
    for (std::size_t i = 0; i < row.size(); ++i)
      height = std::max(height, heightRequest(*row[i], columns[i].width).natural);
    placeRow(row, columns, y, height);
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
  minimum = natural = forEachRow(width, [](const auto&, const auto&, int, int) {});
}

void AdaptiveGrid::size_allocate_vfunc(int width, int, int) {
  forEachRow(width, [width](const auto& row, const auto& columns, int y, int height) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      const auto [x, cellWidth] = columns[i];
      const int cellHeight = heightRequest(*row[i], cellWidth).natural;
      allocateFromLeadingEdge(*row[i], {x, y + (height - cellHeight) / 2, cellWidth, cellHeight}, width);
    }
  });
}

} // namespace quorvel
