#pragma once

#include <string>
#include <string_view>

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

/// The size of a text style in points, before the desktop's text scaling.
int pointSize(TextStyle style);

/// The style-sheet classes that stand for each.
std::string_view cssClass(TextStyle style);
std::string_view cssClass(FontWeight weight);
std::string_view cssClass(TextColor color);

/// The style-sheet rules of these classes.
std::string typographyRules();

} // namespace quorvel
