#include "workspace/AgentLoad.h"
#include "workspace/ApprovalState.h"
#include "workspace/RequestStatus.h"
#include "workspace/WorkspaceSection.h"

#include <gmock/gmock.h>
#include <string>
#include <type_traits>
#include <vector>

namespace quorvel {
namespace {

using ::testing::ElementsAre;

template <class Enumeration, class Describe>
auto table(Describe describe) {
  std::vector<std::string> lines;
  for (const auto value : allCases<Enumeration>())
    lines.push_back(std::string(rawValue(value)) + describe(value));
  return lines;
}

template <class Enumeration>
auto rawValues() {
  return table<Enumeration>([](auto) { return ""; });
}

std::string joined(std::initializer_list<std::string_view> columns) {
  std::string line;
  for (const auto column : columns)
    line.append(" | ").append(column);
  return line;
}

template <class Enumeration>
class EveryEnumeration : public ::testing::Test {};
using Enumerations = ::testing::Types<WorkspaceSection, AccentTone, AgentLoad, RequestStatus, ApprovalState>;
TYPED_TEST_SUITE(EveryEnumeration, Enumerations);

TYPED_TEST(EveryEnumeration, IsBuiltBackFromEachOfItsRawValues) {
  for (const auto value : allCases<TypeParam>())
    EXPECT_EQ(fromRawValue<TypeParam>(rawValue(value)), value);
}

TYPED_TEST(EveryEnumeration, GivesNothingForAnUnknownText) {
  for (const auto* text : {"", " ", "unknown", "waiting", "needs review", "Needs Review", "OVERVIEW", "Blue"})
    EXPECT_EQ(fromRawValue<TypeParam>(text), std::nullopt) << text;
}

TYPED_TEST(EveryEnumeration, GivesNothingForARawValueWithOneLetterMoreOrLess) {
  for (const auto value : allCases<TypeParam>()) {
    const std::string text(rawValue(value));
    EXPECT_EQ(fromRawValue<TypeParam>(text + " "), std::nullopt);
    EXPECT_EQ(fromRawValue<TypeParam>(text.substr(1)), std::nullopt);
  }
}

enum class Signal { stop, wait, go };

TEST(PerCase, HoldsAValueForEachCaseInDeclarationOrder) {
  constexpr PerCase<Signal, int> waits{30, 5, 0};
  EXPECT_EQ(waits[Signal::stop], 30);
  EXPECT_EQ(waits[Signal::go], 0);
  EXPECT_THAT(std::vector(waits.begin(), waits.end()), ElementsAre(30, 5, 0));
}

TEST(PerCase, CannotBeMadeWhileACaseIsMissingOrWithOneTooMany) {
  EXPECT_EQ(caseCount<Signal>(), 3U);
  EXPECT_TRUE((std::is_constructible_v<PerCase<Signal, int>, int, int, int>));
  EXPECT_FALSE((std::is_constructible_v<PerCase<Signal, int>, int, int>));
  EXPECT_FALSE((std::is_constructible_v<PerCase<Signal, int>, int, int, int, int>));
  EXPECT_FALSE((std::is_default_constructible_v<PerCase<Signal, int>>));
}

TEST(WorkspaceSection, HasItsTextsSymbolsAndShortcutsInOrder) {
  const auto describe = [](auto section) {
    const char key = shortcut(section);
    return joined({title(section), subtitle(section), symbol(section), std::string_view(&key, 1)});
  };
  EXPECT_THAT(table<WorkspaceSection>(describe),
              ElementsAre("overview | Command Center | Today at a glance | rectangle.3.group | 1",
                          "agents | Agent Team | Specialized helpers | person.2.wave.2 | 2",
                          "requests | Live Requests | Queued work | tray.and.arrow.down | 3",
                          "approvals | Approvals | Human gates | checkmark.seal | 4",
                          "connectors | Connectors | App access | point.3.connected.trianglepath.dotted | 5",
                          "browser | Browser | Page context | safari | 6",
                          "security | Trust | Controls | lock.shield | 7",
                          "pricing | Plans | Subscription fit | chart.bar | 8"));
}

TEST(WorkspaceSection, BuiltFromOverviewWithACapitalGivesNothing) {
  EXPECT_EQ(fromRawValue<WorkspaceSection>("Overview"), std::nullopt);
}

TEST(WorkspaceSection, TheEighthSectionHasShortcutEightAndNoneHasNineOrZero) {
  EXPECT_EQ(shortcut(WorkspaceSection::pricing), '8');
  for (const auto section : allCases<WorkspaceSection>()) {
    EXPECT_NE(shortcut(section), '9');
    EXPECT_NE(shortcut(section), '0');
  }
}

TEST(AccentTone, RawValuesAreTheCaseNamesInOrder) {
  EXPECT_THAT(rawValues<AccentTone>(), ElementsAre("ink", "green", "blue", "clay", "gold", "mint", "slate"));
  EXPECT_EQ(allCases<AccentTone>().front(), AccentTone::ink);
  EXPECT_EQ(allCases<AccentTone>().back(), AccentTone::slate);
}

TEST(AgentLoad, RawValuesAreTheTextsOnScreenInOrder) {
  EXPECT_THAT(rawValues<AgentLoad>(), ElementsAre("Idle", "Active", "Drafting", "Review"));
  EXPECT_EQ(rawValue(AgentLoad::review), "Review");
}

template <class Enumeration>
concept HasTone = requires(Enumeration value) { tone(value); };

TEST(AgentLoad, HasNoToneOfItsOwn) {
  EXPECT_FALSE(HasTone<AgentLoad>);
  EXPECT_TRUE(HasTone<RequestStatus>);
}

TEST(RequestStatus, HasItsTextsAndTonesInOrder) {
  EXPECT_THAT(table<RequestStatus>([](auto status) { return joined({rawValue(tone(status))}); }),
              ElementsAre("Routed | blue", "Drafting | green", "Waiting | gold", "Complete | slate"));
  EXPECT_EQ(rawValue(RequestStatus::routed), "Routed");
  EXPECT_EQ(rawValue(RequestStatus::waiting), "Waiting");
}

TEST(ApprovalState, HasItsTextsAndTonesInOrder) {
  EXPECT_THAT(table<ApprovalState>([](auto state) { return joined({rawValue(tone(state))}); }),
              ElementsAre("Needs review | gold", "Approved | green", "Paused | slate"));
  EXPECT_EQ(rawValue(ApprovalState::paused), "Paused");
}

TEST(ApprovalState, TheCaseWaitingIsShownAsNeedsReview) {
  EXPECT_EQ(rawValue(ApprovalState::waiting), "Needs review");
  EXPECT_EQ(fromRawValue<ApprovalState>("Needs review"), ApprovalState::waiting);
  EXPECT_EQ(fromRawValue<ApprovalState>("Waiting"), std::nullopt);
}

} // namespace
} // namespace quorvel
