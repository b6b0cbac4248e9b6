#pragma once

#include "vocabulary/Enumeration.h"

#include <string>

namespace quorvel {

/// The text styles by role, smallest first; `figure` and `largeTitle` are the two sizes outside the usual
/// scale.
enum class TextStyle {
  caption2,
  caption,
  subheadline,
  callout,
  body,
  headline,
  title3,
  title2,
  figure,
  largeTitle
};

enum class FontWeight { regular, medium, semibold, bold, black };

/// How strongly a text speaks. `standard` is the window's own text colour, `dimmed` its secondary one; `tone`
/// takes the colour of the tone the text or one of its containers is tagged with.
enum class TextColor { standard, dimmed, ink, secondaryInk, muted, green, black, tone };

/// The rounded design is for large figures.
enum class FontDesign { standard, rounded };

// A raw value is the name of the style-sheet class that stands for the case.

template <>
struct EnumerationTable<TextStyle> {
  struct Row {
    std::string_view rawValue;
    int pointSize; ///< before the desktop's text scaling
    int weight;
  };
  static constexpr PerCase<TextStyle, Row> rows{
      Row{"text-caption2", 10, 400},    Row{"text-caption", 11, 400}, Row{"text-subheadline", 12, 400},
      Row{"text-callout", 13, 400},     Row{"text-body", 14, 400},    Row{"text-headline", 14, 700},
      Row{"text-title3", 16, 400},      Row{"text-title2", 18, 400},  Row{"text-figure", 30, 400},
      Row{"text-large-title", 34, 400},
  };
};

template <>
struct EnumerationTable<FontWeight> {
  struct Row {
    std::string_view rawValue;
    int weight;
  };
  static constexpr PerCase<FontWeight, Row> rows{
      Row{"weight-regular", 400}, Row{"weight-medium", 500}, Row{"weight-semibold", 600},
      Row{"weight-bold", 700},    Row{"weight-black", 900},
  };
};

template <>
struct EnumerationTable<TextColor> {
  struct Row {
    std::string_view rawValue;
  };
  static constexpr PerCase<TextColor, Row> rows{
      Row{"color-standard"}, Row{"color-dimmed"}, Row{"color-ink"},   Row{"color-secondary-ink"},
      Row{"color-muted"},    Row{"color-green"},  Row{"color-black"}, Row{"color-tone"},
  };
};

template <>
struct EnumerationTable<FontDesign> {
  struct Row {
    std::string_view rawValue;
  };
  static constexpr PerCase<FontDesign, Row> rows{Row{"design-standard"}, Row{"design-rounded"}};
};

/// The size of a text style in points, before the desktop's text scaling.
constexpr int pointSize(TextStyle style) {
  return row(style).pointSize;
}

/// The style-sheet rules of these classes.
std::string typographyRules();

} // namespace quorvel
