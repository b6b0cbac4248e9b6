#pragma once

#include <cstddef>
#include <functional>
#include <map>

namespace quorvel {

/// How high the rows of a long list are, and so where each of them stands: as measured where a row was seen,
/// an estimate where not. The first height that becomes known is the estimate for all others.
///
/// Lists grow at their front, so a height stays with a row's distance from the end. Questions cost the rows
/// that differ from the estimate, not the list. All lengths are in points.
class RowHeights {
 public:
  RowHeights(int estimate, int spacing);

  void setCount(std::size_t count);
  std::size_t count() const { return count_; }
  void setHeight(std::size_t row, int height);
  /// Forgets what was measured, but not how high a row is likely to be.
  void forget();

  /// Where this row begins.
  int top(std::size_t row) const;
  /// The row that this place belongs to, together with the gap below it; the first or last for places
  /// outside. Needs one row at least.
  std::size_t rowAt(int y) const;
  /// The length of all rows and the gaps between them.
  int total() const;

 private:
  std::size_t fromEnd(std::size_t row) const { return count_ - 1 - row; }
  int pitch() const { return estimate_ + spacing_; }

  int estimate_;
  int spacing_;
  bool isEstimateMeasured_ = false;
  std::size_t count_ = 0;
  /// Heights other than the estimate, by distance from the end; the first row of the list comes first.
  std::map<std::size_t, int, std::greater<>> others_;
};

} // namespace quorvel
