#include "brand/Typography.h"

#include <array>
#include <sstream>

namespace quorvel {
namespace {

struct StyleRow {
  std::string_view cssClass;
  int pointSize;
  int weight;
};
constexpr std::array styles{
    StyleRow{"caption2", 10, 400},    StyleRow{"caption", 11, 400}, StyleRow{"subheadline", 12, 400},
    StyleRow{"callout", 13, 400},     StyleRow{"body", 14, 400},    StyleRow{"headline", 14, 700},
    StyleRow{"title3", 16, 400},      StyleRow{"title2", 18, 400},  StyleRow{"figure", 30, 400},
    StyleRow{"large-title", 34, 400},
};

struct WeightRow {
  std::string_view cssClass;
  int weight;
};
constexpr std::array weights{
    WeightRow{"regular", 400}, WeightRow{"medium", 500}, WeightRow{"semibold", 600},
    WeightRow{"bold", 700},    WeightRow{"black", 900},
};

/// A symbol keeps a margin inside its square; so much larger than the text it looks as large.
constexpr double symbolScale = 1.25;

constexpr std::array<std::string_view, 8> colors{"standard", "dimmed", "ink",        "secondary-ink",
                                                 "muted",    "green",  "pure-black", "tone"};

} // namespace

int pointSize(TextStyle style) {
  return styles[static_cast<std::size_t>(style)].pointSize;
}

std::string_view cssClass(TextStyle style) {
  return styles[static_cast<std::size_t>(style)].cssClass;
}

std::string_view cssClass(FontWeight weight) {
  return weights[static_cast<std::size_t>(weight)].cssClass;
}

std::string_view cssClass(TextColor color) {
  return colors[static_cast<std::size_t>(color)];
}

std::string typographyRules() {
  std::ostringstream rules;
  rules.imbue(std::locale::classic());
  // The toolkit scales only `pt` with the desktop's text size; one of our points is 0.75 of that unit.
  for (const auto& style : styles)
    rules << '.' << style.cssClass << " { font-size: " << style.pointSize * 0.75
          << "pt; -gtk-icon-size: " << style.pointSize * 0.75 * symbolScale
          << "pt; font-weight: " << style.weight << "; }\n";
  for (const auto& weight : weights)
    rules << '.' << weight.cssClass << " { font-weight: " << weight.weight << "; }\n";
  return rules.str();
}

} // namespace quorvel
