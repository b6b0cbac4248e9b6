#include "brand/Typography.h"

#include <sstream>

namespace quorvel {
namespace {

/// A symbol keeps a margin inside its square; so much larger than the text it looks as large.
constexpr double symbolScale = 1.25;

} // namespace

std::string typographyRules() {
  std::ostringstream rules;
  rules.imbue(std::locale::classic());
  // The toolkit scales only `pt` with the desktop's text size; one of our points is 0.75 of that unit.
  for (const auto& style : EnumerationTable<TextStyle>::rows)
    rules << '.' << style.rawValue << " { font-size: " << style.pointSize * 0.75
          << "pt; -gtk-icon-size: " << style.pointSize * 0.75 * symbolScale
          << "pt; font-weight: " << style.weight << "; }\n";
  for (const auto& weight : EnumerationTable<FontWeight>::rows)
    rules << '.' << weight.rawValue << " { font-weight: " << weight.weight << "; }\n";
  return rules.str();
}

} // namespace quorvel
