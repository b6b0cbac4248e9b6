#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quorvel {

/// The value that `part` of all are no greater than: the median at 0.5, the greatest at 1. There is one at
/// least.
inline double percentile(std::vector<double> values, double part) {
  std::ranges::sort(values);
  return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1) + 0.5)];
}

} // namespace quorvel
