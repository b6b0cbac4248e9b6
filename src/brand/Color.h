#pragma once

namespace quorvel {

/// An sRGB colour; every component is a fraction from 0 to 1.
struct Color {
  double red, green, blue;
  double alpha = 1.0;

  static constexpr Color white(double opacity = 1.0) { return {1, 1, 1, opacity}; }
  static constexpr Color black(double opacity = 1.0) { return {0, 0, 0, opacity}; }
  constexpr Color withOpacity(double opacity) const { return {red, green, blue, opacity}; }
  bool operator==(const Color&) const = default;
};

} // namespace quorvel
