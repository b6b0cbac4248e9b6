#pragma once

#include <cstddef>

namespace quorvel {

/// Equal columns side by side, `spacing` points apart, as many as a width allows.
struct Columns {
  int minimumWidth; ///< of each, in points
  int spacing;

  /// How many fit; one at least, however narrow.
  int count(int width) const;
};

struct Column {
  int x, width;
};

/// Where one of `count` columns is, in the direction of the writing: they share out every point of the width.
Column columnAt(std::size_t index, std::size_t count, int width, int spacing);

} // namespace quorvel
