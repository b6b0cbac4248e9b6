#include "console/AgentsView.h"

#include "brand/QuorvelBrand.h"
#include "brand/StatusPill.h"
#include "support/TestWindow.h"

namespace quorvel {
namespace {

using namespace quorvel::tests;
using ::testing::ElementsAre;
using ::testing::Not;

AgentProfile agent(const std::string& id) {
  return {.id = id,
          .name = "Ledger Agent",
          .shortName = "Ledger",
          .focus = "Bookkeeping",
          .currentWork = "Sorting receipts.",
          .output = "Month summary",
          .load = AgentLoad::idle,
          .tone = AccentTone::clay,
          .signal = "12 receipts"};
}

class AgentsTest : public ::testing::Test {
 protected:
  void show(RecordList<AgentProfile> agents) {
    store_.agents = std::move(agents);
    drawFrame(view_);
  }
  void showShortName(const std::string& shortName) {
    auto changed = agent("ledger");
    changed.shortName = shortName;
    show({changed});
  }
  Gtk::Widget& grid() { return *view_.get_last_child(); }
  std::vector<Gtk::Widget*> cards() {
    std::vector<Gtk::Widget*> children;
    for (auto* child = grid().get_first_child(); child; child = child->get_next_sibling())
      children.push_back(child);
    return children;
  }
  std::vector<std::string> names() {
    std::vector<std::string> result;
    for (auto* card : cards())
      result.push_back(texts(*card)[2]);
    return result;
  }
  Gtk::Label& monogram() { return *all<Gtk::Label>(grid()).front(); }
  int columns() {
    int count = 0;
    for (auto* card : cards())
      count += boundsIn(grid(), *card).get_y() < cards().front()->get_height();
    return count;
  }

  WorkspaceStore store_;
  AgentsView view_{store_};
  TestWindow window_{view_, 852};
};

TEST_F(AgentsTest, ShowsTheHeaderAndACardForEveryAgentInTheStoresOrder) {
  EXPECT_THAT(texts(*view_.get_first_child()),
              ElementsAre("AGENT TEAM", "Specialists that pick up the work",
                          "Each helper has a bounded job, a visible status, and outputs that wait for review "
                          "when the action matters."));
  EXPECT_THAT(names(),
              ElementsAre("Main Agent", "Planning Agent", "Finance Agent", "Ads Agent", "Marketing Agent",
                          "Voice Scheduling Agent", "Sales + Support Agents", "Order Management Agent"));
}

TEST_F(AgentsTest, ACardShowsEveryFactOfItsAgent) {
  show({agent("ledger")});
  EXPECT_THAT(texts(*cards().front()),
              ElementsAre("Le", "Idle", "Ledger Agent", "Bookkeeping", "Now", "Sorting receipts.", "Output",
                          "Month summary", "Signal", "12 receipts"));
}

TEST_F(AgentsTest, AnEmptyListShowsTheHeaderAndNothingElse) {
  show({});
  EXPECT_TRUE(cards().empty());
  EXPECT_EQ(texts(view_).size(), 3U);
}

TEST_F(AgentsTest, TheMonogramIsTheFirstTwoCharactersUnaltered) {
  showShortName("money");
  EXPECT_EQ(monogram().get_text(), "mo");
}

TEST_F(AgentsTest, AShortNameOfOneCharacterShowsThatCharacter) {
  showShortName("Q");
  EXPECT_EQ(monogram().get_text(), "Q");
}

TEST_F(AgentsTest, AnEmptyShortNameShowsAnEmptyCircle) {
  showShortName("");
  EXPECT_EQ(monogram().get_text(), "");
  auto* circle = monogram().get_parent();
  EXPECT_EQ(circle->get_width(), 42);
  EXPECT_EQ(circle->get_height(), 42);
  EXPECT_TRUE(circle->get_mapped());
}

TEST_F(AgentsTest, TheMonogramCountsCharactersAsAReaderDoes) {
  showShortName("Äöü");
  EXPECT_EQ(monogram().get_text(), "Äö");
  showShortName("👍🏽xy");
  EXPECT_EQ(monogram().get_text(), "👍🏽x") << "an emoji with its skin tone is one character";
  showShortName("e\u0301te");
  EXPECT_EQ(monogram().get_text(), "e\u0301t") << "a letter with a combining accent is one character";
  showShortName("👍🏽");
  EXPECT_EQ(monogram().get_text(), "👍🏽");
}

TEST_F(AgentsTest, TheBadgeIsASoftCircleOfExactly42PointsInTheAgentsTone) {
  auto& circle = *monogram().get_parent();
  EXPECT_EQ(circle.get_width(), 42);
  EXPECT_EQ(circle.get_height(), 42);
  show({agent("ledger")});
  EXPECT_THAT(inkOf(monogram()), IsColor(QuorvelBrand::clay));
  const auto bounds = boundsIn(view_, *monogram().get_parent());
  EXPECT_THAT(window_.pixel(bounds.get_x() + 4, bounds.get_y() + 21), Not(IsColor(QuorvelBrand::panel)));
  EXPECT_THAT(window_.pixel(bounds.get_x() + 1, bounds.get_y() + 1), IsColor(QuorvelBrand::panel))
      << "outside the circle";
}

TEST_F(AgentsTest, ThePillShowsTheLoadInTheAgentsOwnToneWhateverTheLoad) {
  for (const auto load : allCases<AgentLoad>()) {
    auto changed = agent("ledger");
    changed.load = load;
    show({changed});
    auto* pill = all<StatusPill>(grid()).front();
    EXPECT_THAT(texts(*pill), ElementsAre(std::string(rawValue(load))));
    EXPECT_TRUE(pill->has_css_class("tone-clay"));
    EXPECT_FALSE(pill->has_css_class("pill-prominent"));
  }
}

TEST_F(AgentsTest, HoweverNarrowThereIsOneColumnAndNoneIsNarrowerThan260Points) {
  window_.resize(533);
  EXPECT_EQ(columns(), 1);
  window_.resize(534);
  EXPECT_EQ(columns(), 2);
  EXPECT_EQ(cards().front()->get_width(), 260);
  window_.resize(852);
  EXPECT_EQ(columns(), 3);
  EXPECT_EQ(cards()[0]->get_width(), (852 - 28) / 3);
  EXPECT_EQ(boundsIn(grid(), *cards()[1]).get_x(), (852 - 28) / 3 + 14);
}

TEST_F(AgentsTest, ALongFocusWrapsAndIsNeverCut) {
  auto verbose = agent("ledger");
  verbose.focus = "Receipts, invoices, reminders, statements, refunds and whatever else arrives on paper";
  show({verbose});
  auto* focus = labelled(grid(), verbose.focus);
  EXPECT_GT(focus->get_layout()->get_line_count(), 1);
  EXPECT_FALSE(focus->get_layout()->is_ellipsized());
}

TEST_F(AgentsTest, AFactsValueStaysAtTheTrailingSideAndWrapsBesideItsTitle) {
  auto busy = agent("ledger");
  busy.currentWork = "Sorting a whole drawer of receipts from last spring and the summer before it.";
  show({busy});
  auto& card = *cards().front();
  for (const auto* value : {busy.currentWork.c_str(), "Month summary", "12 receipts"}) {
    const auto bounds = boundsIn(card, *labelled(card, value));
    EXPECT_EQ(bounds.get_x() + bounds.get_width(), card.get_width() - 18) << value;
  }
  auto* now = labelled(card, busy.currentWork);
  EXPECT_GT(now->get_layout()->get_line_count(), 1);
  EXPECT_EQ(now->get_justify(), Gtk::Justification::RIGHT);
  EXPECT_EQ(boundsIn(card, *now).get_y(), boundsIn(card, *labelled(card, "Now")).get_y());
}

TEST_F(AgentsTest, AChangedAgentIsShownInItsCardAndAMovedOneMovesItsCard) {
  auto first = agent("first"), second = agent("second");
  show({first, second});
  const auto before = cards();
  second.name = "Second Agent";
  show({second, first});
  EXPECT_THAT(cards(), ElementsAre(before[1], before[0]));
  EXPECT_THAT(names(), ElementsAre("Second Agent", "Ledger Agent"));
}

TEST_F(AgentsTest, OfTwoAgentsWithOneIdTheFirstHasTheCard) {
  auto twin = agent("ledger");
  twin.name = "Twin";
  show({agent("ledger"), twin});
  EXPECT_THAT(names(), ElementsAre("Ledger Agent"));
}

TEST_F(AgentsTest, TheSearchTextHasNoEffect) {
  const auto before = texts(view_);
  store_.searchText = "Finance";
  drawFrame(view_);
  EXPECT_EQ(texts(view_), before);
}

} // namespace
} // namespace quorvel
