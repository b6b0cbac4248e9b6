#pragma once

#include "brand/Color.h"
#include "vocabulary/AccentTone.h"

#include <array>

namespace quorvel {

/// The palette. With the colours that one view alone wears, below, it is the only place where a colour of the
/// application is spelled out. Style sheets see every token under its own name (`@panelRaised`) and every
/// tone as a class (`.tone-green`).
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

  /// The corner radius of everything rounded, in points; `@radius` in the style sheet.
  static constexpr double radius = 10.0;

  /// Evenly spaced colours from the top leading to the bottom trailing corner of a window.
  static constexpr std::array<Color, 3> windowGradient() {
    return {background, Color{0.011, 0.014, 0.016}, Color{0.018, 0.019, 0.020}};
  }
};

/// Colours that belong to one view and not to the palette.
struct ViewColors {
  static constexpr Color consoleSidebarTop{0.025, 0.020, 0.019};
  static constexpr Color consoleSidebarBottom{0.012, 0.012, 0.013};
  static constexpr Color inspector{0.030, 0.031, 0.033};
  static constexpr Color userBubble{0.020, 0.105, 0.220};
  static constexpr Color clientSidebarTop{0.028, 0.022, 0.020};
  static constexpr Color clientSidebarBottom{0.006, 0.006, 0.007};
  static constexpr Color clientToolbar{0.020, 0.018, 0.018};
  /// The three buttons of the window that the browser screen draws.
  static constexpr Color closeButton{1.000, 0.231, 0.188, 0.72};
  static constexpr Color minimiseButton{1.000, 0.800, 0.000, 0.82};
  static constexpr Color zoomButton{0.204, 0.780, 0.349, 0.72};
};

/// The tones' colours; two of them have no token of the palette.
inline constexpr PerCase<AccentTone, Color> toneColors{
    QuorvelBrand::ink,  QuorvelBrand::green,     QuorvelBrand::blue,      QuorvelBrand::clay,
    QuorvelBrand::gold, Color{0.45, 0.74, 0.60}, Color{0.35, 0.40, 0.46},
};

/// The colour of a tone.
constexpr Color color(AccentTone tone) {
  return toneColors[tone];
}

/// The tint behind text and symbols of the tone.
constexpr Color softColor(AccentTone tone) {
  return color(tone).withOpacity(0.14);
}

} // namespace quorvel
