#include "preferences/PreferenceKey.h"
#include "preferences/PreferencesText.h"

#include <gmock/gmock.h>

namespace quorvel {
namespace {

using ::testing::ElementsAre;

constexpr std::string_view key = "Quorvel.showInspector";

std::optional<bool> valueIn(std::string_view text) {
  return PreferencesText(text).value(key);
}

std::string edited(std::string_view text, bool value) {
  PreferencesText edit(text);
  edit.setValue(key, value);
  return edit.text();
}

TEST(PreferenceKey, HasTheSixKeysAndEachIsOnByDefault) {
  std::vector<std::string_view> keys;
  for (const auto preference : allCases<PreferenceKey>()) {
    keys.push_back(rawValue(preference));
    EXPECT_TRUE(defaultValue(preference));
  }
  EXPECT_THAT(keys,
              ElementsAre("Quorvel.requireApprovalForSpend", "Quorvel.requireApprovalForCustomerMessages",
                          "Quorvel.requireApprovalForBookings", "Quorvel.keepActivityHistory",
                          "Quorvel.showInspector", "Quorvel.dailyBriefEnabled"));
  EXPECT_EQ(rawValue(PreferenceKey::showInspector), key);
}

TEST(PreferencesText, ReadsTrueAndFalse) {
  EXPECT_EQ(valueIn("[Preferences]\nQuorvel.showInspector=true\n"), true);
  EXPECT_EQ(valueIn("[Preferences]\nQuorvel.showInspector=false\n"), false);
}

TEST(PreferencesText, SpacesAndAMissingLastLineEndDoNotMatter) {
  EXPECT_EQ(valueIn("  [Preferences]\t\n Quorvel.showInspector = false \n"), false);
  EXPECT_EQ(valueIn("[Preferences]\nQuorvel.showInspector=false"), false);
}

TEST(PreferencesText, ALineEndsAsOnAnySystem) {
  for (const std::string end : {"\n", "\r\n", "\r"}) {
    const auto header = "[Preferences]" + end;
    EXPECT_EQ(valueIn(end + header + "Quorvel.showInspector=false" + end), false);
    EXPECT_EQ(edited(header + "Quorvel.showInspector=false" + end + "x" + end, true),
              header + "Quorvel.showInspector=true" + end + "x" + end);
    EXPECT_EQ(edited(header + "x", true), header + "x" + end + "Quorvel.showInspector=true" + end);
    EXPECT_EQ(edited("x" + end, true), "x" + end + header + "Quorvel.showInspector=true" + end);
  }
}

TEST(PreferencesText, AByteOrderMarkCountsAsABlank) {
  const std::string mark = "\ufeff";
  EXPECT_EQ(valueIn(mark + "[Preferences]\nQuorvel.showInspector=false\n"), false);
  EXPECT_EQ(valueIn(mark + mark + " [Preferences] " + mark + "\nQuorvel.showInspector=false\n"), false);
  EXPECT_EQ(valueIn("[Preferences]\n" + mark + "Quorvel.showInspector = " + mark + "false\n"), false);
  EXPECT_EQ(edited(mark + "[Preferences]\n", false), mark + "[Preferences]\nQuorvel.showInspector=false\n");
  EXPECT_EQ(edited(mark, false), mark + "\n[Preferences]\nQuorvel.showInspector=false\n");
}

TEST(PreferencesText, ATextThatNobodyEditsStaysByteForByte) {
  using namespace std::string_literals;
  for (const auto& text : {""s, "\n"s, "x"s, "\r\r\n\n\r"s, "\0\n\0"s, "a\r\nb\nc\rd"s, "\ufeff\xff\xfe"s})
    EXPECT_EQ(PreferencesText(text).text(), text);
}

TEST(PreferencesText, AMissingKeyIsAbsent) {
  EXPECT_EQ(valueIn(""), std::nullopt);
  EXPECT_EQ(valueIn("[Preferences]\n"), std::nullopt);
  EXPECT_EQ(valueIn("[Preferences]\nQuorvel.showInspectors=false\nQuorvel.show=false\n"), std::nullopt);
  EXPECT_EQ(valueIn("[Preferences]\n#Quorvel.showInspector=false\n"), std::nullopt);
  EXPECT_EQ(valueIn("[Preferences]\nquorvel.showinspector=false\n"), std::nullopt) << "keys are exact";
}

TEST(PreferencesText, AGarbageValueIsAbsent) {
  for (const std::string value : {"", "no", "False", "0", "falsefalse", "false=", "\xff\xfe", "false;"})
    EXPECT_EQ(valueIn("[Preferences]\nQuorvel.showInspector=" + value + "\n"), std::nullopt) << value;
}

TEST(PreferencesText, AKeyOutsideItsGroupIsAbsent) {
  EXPECT_EQ(valueIn("Quorvel.showInspector=false\n"), std::nullopt);
  EXPECT_EQ(valueIn("[Other]\nQuorvel.showInspector=false\n[Preferences]\n"), std::nullopt);
  EXPECT_EQ(valueIn("[Preferences]\n[Other]\nQuorvel.showInspector=false\n"), std::nullopt);
}

TEST(PreferencesText, OfSeveralLinesWithOneKeyTheLastCounts) {
  EXPECT_EQ(valueIn("[Preferences]\nQuorvel.showInspector=false\nQuorvel.showInspector=true\n"), true);
  EXPECT_EQ(valueIn("[Preferences]\nQuorvel.showInspector=false\nQuorvel.showInspector=what\n"),
            std::nullopt);
}

TEST(PreferencesText, ABrokenLineDoesNotHideTheOtherKeys) {
  EXPECT_EQ(valueIn("broken\n[Preferences]\n=\n[\n[Preferences]\n\x01\xff=\nQuorvel.showInspector=false\n"),
            false);
}

TEST(PreferencesText, TheFirstKeyMakesItsGroup) {
  EXPECT_EQ(edited("", false), "[Preferences]\nQuorvel.showInspector=false\n");
}

TEST(PreferencesText, ALastLineThatIsNotEndedStaysSo) {
  EXPECT_EQ(edited("[Preferences]\nQuorvel.showInspector=true", false),
            "[Preferences]\nQuorvel.showInspector=false");
}

TEST(PreferencesText, AValueIsChangedInItsLine) {
  EXPECT_EQ(edited("[Preferences]\nQuorvel.showInspector = no idea\nother=1\n", true),
            "[Preferences]\nQuorvel.showInspector=true\nother=1\n");
}

TEST(PreferencesText, AnotherKeyFollowsTheLastOfItsGroup) {
  EXPECT_EQ(edited("[Preferences]\na=true\n\n[Other]\nb=1\n", false),
            "[Preferences]\na=true\nQuorvel.showInspector=false\n\n[Other]\nb=1\n");
}

TEST(PreferencesText, EverythingElseSurvivesAChange) {
  const std::string before =
      "\xff garbage \x01\n# a comment\n\n[Other]\nQuorvel.showInspector=true\n[Preferences]\n"
      "unknown=7\nQuorvel.keepActivityHistory=perhaps\nno key here\n";
  const std::string after = "\n# the end\n  \n";
  EXPECT_EQ(edited(before + after, false), before + "\n# the end\nQuorvel.showInspector=false\n  \n");
}

TEST(PreferencesText, ZeroBytesSurviveAChange) {
  using namespace std::string_literals;
  EXPECT_EQ(edited("\0\0x\n"s, false), "\0\0x\n[Preferences]\nQuorvel.showInspector=false\n"s);
}

TEST(PreferencesText, AnUnendedLastLineIsNotRunInto) {
  EXPECT_EQ(edited("[Preferences]\na=true", false), "[Preferences]\na=true\nQuorvel.showInspector=false\n");
}

TEST(PreferencesText, WhatWasWrittenIsReadBack) {
  for (const std::string text :
       {"", "[Preferences]", "[Preferences]\nQuorvel.showInspector=x\n[Preferences]\n"})
    for (const bool value : {true, false})
      EXPECT_EQ(valueIn(edited(text, value)), value) << text;
}

} // namespace
} // namespace quorvel
