#include "layout/columns.h"

#include <algorithm>

namespace quorvel {

int Columns::count(int width) const {
  return std::max(1, (width + spacing) / (minimumWidth + spacing));
}

Column columnAt(std::size_t index, std::size_t count, int width, int spacing) {
  const auto start = [&](std::size_t place) {
    return static_cast<int>(place) * (width + spacing) / static_cast<int>(count);
  };
  return {start(index), start(index + 1) - spacing - start(index)};
}

} // namespace quorvel
