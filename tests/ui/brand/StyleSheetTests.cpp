#include "brand/StyleSheet.h"

#include <gmock/gmock.h>
#include <gtkmm/cssprovider.h>
#include <regex>
#include <set>

namespace quorvel {
namespace {

TEST(StyleSheet, EveryColourNameItUsesIsDefined) {
  const std::string css = styleSheet();
  std::set<std::string> defined, used;
  const std::regex definition("@define-color (\\w+)"), use("@(\\w+)");
  for (std::sregex_iterator match(css.begin(), css.end(), definition), end; match != end; ++match)
    defined.insert((*match)[1]);
  for (std::sregex_iterator match(css.begin(), css.end(), use), end; match != end; ++match)
    used.insert((*match)[1]);
  used.erase("define");
  used.erase("name");
  EXPECT_GT(defined.size(), 14U);
  for (const auto& name : used)
    EXPECT_TRUE(defined.contains(name)) << '@' << name;
}

TEST(StyleSheet, MintAndSlateAreTonesAndNoColoursOfThePalette) {
  const auto css = styleSheet();
  for (const std::string tone : {"mint", "slate"}) {
    EXPECT_THAT(css, ::testing::HasSubstr(".tone-" + tone + " { color: "));
    EXPECT_THAT(css, ::testing::Not(::testing::ContainsRegex("@(define-color )?" + tone)));
  }
}

TEST(StyleSheet, NoColourAndNoRadiusOfThePaletteIsSpelledOutInAHandWrittenRule) {
  const std::string css = handWrittenRules();
  EXPECT_FALSE(std::regex_search(css, std::regex("rgba?\\(|hsla?\\(|#[0-9a-fA-F]{3}")));
  EXPECT_FALSE(std::regex_search(css, std::regex("radius: *10px")));
}

TEST(StyleSheet, IsReadWithoutAComplaint) {
  const auto provider = Gtk::CssProvider::create();
  std::vector<std::string> complaints;
  provider->signal_parsing_error().connect([&](const auto& section, const Glib::Error& error) {
    complaints.push_back(section->to_string() + error.what());
  });
  provider->load_from_data(styleSheet());
  EXPECT_THAT(complaints, ::testing::IsEmpty());
}

} // namespace
} // namespace quorvel
