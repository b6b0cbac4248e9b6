#pragma once

#include "brand/Color.h"
#include "vocabulary/AccentTone.h"

#include <array>

namespace quorvel {

/// The palette: the only place where a colour of the application is spelled out. Style sheets see every token
/// under its own name (`@panelRaised`) and every tone as a class (`.tone-green`).
struct QuorvelBrand {
  static constexpr Color background{0.008, 0.009, 0.010};
  static constexpr Color paper{0.020, 0.021, 0.022};
  static constexpr Color panel{0.055, 0.056, 0.058};
  static constexpr Color panelRaised{0.086, 0.087, 0.090};
  static constexpr Color control{0.960, 0.960, 0.955};
  static constexpr Color ink = Color::white();
  static constexpr Color secondaryInk{0.720, 0.720, 0.735};
  static constexpr Color muted{0.455, 0.460, 0.485};
  static constexpr Color green{0.278, 0.902, 0.627};
  static constexpr Color blue{0.287, 0.604, 1.000};
  static constexpr Color clay{0.815, 0.514, 0.410};
  static constexpr Color gold{0.902, 0.720, 0.282};
  static constexpr Color line = Color::white(0.115);
  static constexpr Color strongLine = Color::white(0.18);

  /// The corner radius of everything rounded, in points.
  static constexpr double radius = 10.0;

  /// Evenly spaced colours from the top leading to the bottom trailing corner of a window.
  static constexpr std::array<Color, 3> windowGradient() {
    return {background, Color{0.011, 0.014, 0.016}, Color{0.018, 0.019, 0.020}};
  }
};

/// The colour of a tone.
constexpr Color color(AccentTone tone) {
  switch (tone) {
  case AccentTone::ink:
    return QuorvelBrand::ink;
  case AccentTone::green:
    return QuorvelBrand::green;
  case AccentTone::blue:
    return QuorvelBrand::blue;
  case AccentTone::clay:
    return QuorvelBrand::clay;
  case AccentTone::gold:
    return QuorvelBrand::gold;
  case AccentTone::mint:
    return {0.45, 0.74, 0.60};
  case AccentTone::slate:
    return {0.35, 0.40, 0.46};
  }
  return QuorvelBrand::ink;
}

/// The tint behind text and symbols of the tone.
constexpr Color softColor(AccentTone tone) {
  return color(tone).withOpacity(0.14);
}

} // namespace quorvel
