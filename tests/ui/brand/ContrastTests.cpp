#include "brand/QuorvelBrand.h"
#include "support/Contrast.h"

#include <fstream>
#include <gmock/gmock.h>
#include <sstream>
#include <string>
#include <vector>

namespace quorvel {
namespace {

using ::testing::ElementsAreArray;
using tests::over;

struct Named {
  std::string name;
  Color color;
};

/// What an eye meets: something in a colour on a ground, and the least ratio at which it is told apart.
struct Pair {
  Named mark, ground;
  double limit;
};

constexpr double forText = 4.5, forMarks = 3;

double ratio(const Pair& pair) {
  return tests::contrast(pair.mark.color, pair.ground.color);
}

const Named background{"background", QuorvelBrand::background}, panel{"panel", QuorvelBrand::panel},
    raised{"raised panel", QuorvelBrand::panelRaised};

std::vector<Pair> texts() {
  std::vector<Pair> pairs;
  const Named inks[] = {{"ink", QuorvelBrand::ink},     {"secondary ink", QuorvelBrand::secondaryInk},
                        {"muted", QuorvelBrand::muted}, {"dimmed", QuorvelBrand::ink.withOpacity(0.55)},
                        {"green", QuorvelBrand::green}, {"link", QuorvelBrand::blue}};
  for (const auto& ground : {background, panel, raised})
    for (const auto& ink : inks)
      pairs.push_back({ink, ground, forText});
  for (const auto& ink : {inks[0], inks[1]})
    pairs.push_back({ink, {"own message", ViewColors::userBubble}, forText});
  for (const auto& ground : {panel, raised})
    pairs.push_back({{"disabled", QuorvelBrand::ink.withOpacity(0.5)},
                     {"button on " + ground.name, over(QuorvelBrand::ink.withOpacity(0.05), ground.color)},
                     forText});
  pairs.push_back({{"black", Color::black()}, {"control", QuorvelBrand::control}, forText});
  return pairs;
}

std::vector<Pair> pills() {
  std::vector<Pair> pairs;
  for (const auto tone : allCases<AccentTone>()) {
    const std::string name(rawValue(tone));
    for (const auto& ground : {panel, raised})
      pairs.push_back(
          {{name, color(tone)}, {"pill on " + ground.name, over(softColor(tone), ground.color)}, forText});
  }
  return pairs;
}

std::vector<Pair> marks() {
  std::vector<Pair> pairs;
  for (const auto& ground : {background, panel, raised}) {
    pairs.push_back({{"focus ring", QuorvelBrand::blue}, ground, forMarks});
    pairs.push_back({{"switch, off", QuorvelBrand::ink.withOpacity(0.36)}, ground, forMarks});
    pairs.push_back({{"switch, on", QuorvelBrand::green}, ground, forMarks});
    for (const auto tone : allCases<AccentTone>())
      pairs.push_back({{std::string(rawValue(tone)) + " mark", color(tone)}, ground, forMarks});
  }
  pairs.push_back({{"slider", Color::white()}, {"switch, on", QuorvelBrand::green}, forMarks});
  return pairs;
}

/// A line of the table in the docs, without what makes up for it.
std::string line(const Pair& pair) {
  std::ostringstream text;
  text.precision(1);
  text << "| " << pair.mark.name << " | " << pair.ground.name << " | " << std::fixed << ratio(pair) << " |";
  return text.str();
}

std::vector<std::string> documented() {
  std::vector<std::string> lines;
  std::ifstream docs(QUORVEL_ACCESSIBILITY_DOCS);
  for (std::string text; std::getline(docs, text);)
    if (text.starts_with("| ") && text.find_first_of("0123456789") != std::string::npos)
      lines.push_back(text.substr(0, text.find(" |", text.find('.')) + 2));
  return lines;
}

TEST(Contrast, WhatIsHardToTellApartIsTheDocsWholeTable) {
  std::vector<std::string> hard;
  for (const auto& pairs : {texts(), pills(), marks()})
    for (const auto& pair : pairs)
      if (ratio(pair) < pair.limit)
        hard.push_back(line(pair));
  EXPECT_THAT(documented(), ElementsAreArray(hard));
}

TEST(Contrast, TheStyleSheetHasTheColoursThatThePaletteLeavesOpen) {
  std::ostringstream sheet;
  sheet << std::ifstream(QUORVEL_STYLE_SHEET).rdbuf();
  for (const auto* rule :
       {"color: alpha(@ink, 0.5);", "switch {\n  border: none;\n  background-color: alpha(@ink, 0.36);",
        ".color-dimmed { color: alpha(@ink, 0.55); }", "outline: 2px solid @blue;"})
    EXPECT_THAT(sheet.str(), ::testing::HasSubstr(rule));
}

} // namespace
} // namespace quorvel
