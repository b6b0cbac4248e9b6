#include "layout/RowHeights.h"

#include <algorithm>

namespace quorvel {

RowHeights::RowHeights(int estimate, int spacing) : estimate_(estimate), spacing_(spacing) {}

void RowHeights::setCount(std::size_t count) {
  count_ = count;
  std::erase_if(others_, [count](const auto& other) { return other.first >= count; });
}

void RowHeights::setHeight(std::size_t row, int height) {
  if (!isEstimateMeasured_)
    estimate_ = height;
  isEstimateMeasured_ = true;
  if (height == estimate_)
    others_.erase(fromEnd(row));
  else
    others_[fromEnd(row)] = height;
}

void RowHeights::forget() {
  others_.clear();
  isEstimateMeasured_ = false;
}

int RowHeights::top(std::size_t row) const {
  int y = static_cast<int>(row) * pitch();
  for (const auto& [distance, height] : others_) {
    if (count_ - 1 - distance >= row)
      break;
    y += height - estimate_;
  }
  return y;
}

std::size_t RowHeights::rowAt(int y) const {
  // The first row that is not yet passed, and where it begins.
  std::size_t next = 0;
  int top = 0;
  for (const auto& [distance, height] : others_) {
    const std::size_t other = count_ - 1 - distance;
    const int otherTop = top + static_cast<int>(other - next) * pitch();
    if (y < otherTop)
      break;
    next = other + 1;
    top = otherTop + height + spacing_;
    if (y < top)
      return other;
  }
  return std::min(count_ - 1, next + static_cast<std::size_t>(std::max(0, y - top) / pitch()));
}

int RowHeights::total() const {
  return count_ == 0 ? 0 : top(count_) - spacing_;
}

} // namespace quorvel
