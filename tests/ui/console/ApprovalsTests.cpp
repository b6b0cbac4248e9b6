#include "console/ApprovalsView.h"

#include "brand/StatusPill.h"
#include "support/TestWindow.h"

namespace quorvel {
namespace {

using namespace quorvel::tests;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::Gt;
using ::testing::Lt;

const std::string replies = "Send three delayed order replies";
const std::string adSpend = "Shift $240 from broad audience to retargeting";
const std::string callbacks = "Book two consultation callbacks";

ApprovalItem gate(const std::string& id, ApprovalState state, std::vector<std::string> steps = {"Checked"}) {
  return {id, "Gate " + id, "Agent", "Source", "Summary", "Risk", std::move(steps), state};
}

class ApprovalsTest : public ::testing::Test {
 protected:
  void show(RecordList<ApprovalItem> approvals) {
    store_.approvals = std::move(approvals);
    draw();
  }
  void draw() { drawFrame(view_); }

  /// The card of one gate, by its title.
  Gtk::Widget& card(const std::string& title) {
    Gtk::Widget* widget = labelled(view_, title);
    while (!widget->has_css_class("quorvel-card"))
      widget = widget->get_parent();
    return *widget;
  }
  Gtk::Widget& row(const std::string& title) { return *card(title).get_parent(); }
  Gtk::Button& approveButton(const std::string& title) { return *buttonNamed(card(title), "Approve"); }
  Gtk::Button& pauseButton(const std::string& title) { return *buttonNamed(card(title), "Pause"); }
  StatusPill& statePill(const std::string& title) { return *all<StatusPill>(card(title)).at(0); }
  StatusPill& riskPill(const std::string& title) { return *all<StatusPill>(card(title)).at(1); }
  ApprovalState state(std::size_t index) { return store_.approvals->at(index).state; }
  void tab(Gtk::DirectionType direction) { window_.child_focus(direction); }
  const Gtk::Widget* focused() { return window_.get_focus(); }

  WorkspaceStore store_;
  ApprovalsView view_{store_};
  TestWindow window_{view_, 852};
};

TEST_F(ApprovalsTest, ShowsEveryGateOfTheSampleWorkspaceWithItsChecksInOrder) {
  EXPECT_THAT(texts(card(replies)),
              ElementsAre(replies, "Needs review", "Customer-facing",
                          "Customer messages include updated delivery windows and a soft apology.",
                          "Order Management Agent", "Gmail + Shopify", "Checked order status",
                          "Matched support history", "Drafted replies", "Holding send", "Pause", "Approve"));
  EXPECT_LT(boundsIn(view_, card(replies)).get_y(), boundsIn(view_, card(adSpend)).get_y());
  EXPECT_LT(boundsIn(view_, card(adSpend)).get_y(), boundsIn(view_, card(callbacks)).get_y());
}

TEST_F(ApprovalsTest, AWaitingGateShowsAProminentGoldPillAndTwoEnabledButtons) {
  EXPECT_TRUE(statePill(replies).has_css_class("pill-prominent"));
  EXPECT_TRUE(statePill(replies).has_css_class("tone-gold"));
  EXPECT_TRUE(approveButton(replies).is_sensitive());
  EXPECT_TRUE(pauseButton(replies).is_sensitive());
}

TEST_F(ApprovalsTest, ApproveGrantsExactlyThatGateOnce) {
  click(approveButton(adSpend));
  draw();
  EXPECT_EQ(state(0), ApprovalState::waiting);
  EXPECT_EQ(state(1), ApprovalState::approved);
  ASSERT_EQ(store_.activity->size(), 5U);
  EXPECT_EQ(store_.activity->front().detail,
            "Ads Agent can continue with shift $240 from broad audience to retargeting.");
  EXPECT_THAT(texts(statePill(adSpend)), ElementsAre("Approved"));
}

TEST_F(ApprovalsTest, PauseHoldsExactlyThatGateOnce) {
  click(pauseButton(replies));
  draw();
  EXPECT_EQ(state(0), ApprovalState::paused);
  EXPECT_EQ(state(1), ApprovalState::waiting);
  ASSERT_EQ(store_.activity->size(), 5U);
  EXPECT_EQ(store_.activity->front().detail, "Send three delayed order replies is waiting for more context.");
}

TEST_F(ApprovalsTest, ADecidedGateShowsAQuietPillAndTwoDisabledButtonsThatDoNothing) {
  click(approveButton(replies));
  draw();
  for (const auto& [title, tone] : {std::pair{replies, "tone-green"}, std::pair{callbacks, "tone-slate"}}) {
    EXPECT_FALSE(statePill(title).has_css_class("pill-prominent"));
    EXPECT_TRUE(statePill(title).has_css_class(tone));
    EXPECT_TRUE(approveButton(title).get_mapped()) << "disabled, not hidden";
    EXPECT_FALSE(approveButton(title).is_sensitive());
    EXPECT_FALSE(pauseButton(title).is_sensitive());
    approveButton(title).activate();
    pauseButton(title).activate();
  }
  EXPECT_EQ(state(0), ApprovalState::approved);
  EXPECT_EQ(state(2), ApprovalState::paused);
  EXPECT_EQ(store_.activity->size(), 5U);
}

TEST_F(ApprovalsTest, TheDecisionIsTheLastShownRecordsAndNotTheFirst) {
  auto renamed = *store_.approvals;
  renamed[0].title = "Renamed";
  show(renamed);
  click(pauseButton("Renamed"));
  EXPECT_EQ(store_.activity->front().detail, "Renamed is waiting for more context.");
}

TEST_F(ApprovalsTest, AGateWithoutStepsKeepsThePlaceOfTheEmptyRow) {
  show({gate("a", ApprovalState::waiting, {}), gate("b", ApprovalState::waiting)});
  const auto gap = [&](const std::string& title) {
    const auto summary = boundsIn(view_, *labelled(card(title), "Source"));
    return boundsIn(view_, approveButton(title)).get_y() - (summary.get_y() + summary.get_height());
  };
  EXPECT_EQ(gap("Gate a"), 32) << "a gap above the row and one below";
  EXPECT_GT(gap("Gate b"), 32 + 14) << "a chip is padded by 7 above and below";
  EXPECT_THAT(texts(card("Gate a")), ElementsAre("Gate a", "Needs review", "Risk", "Summary", "Agent",
                                                 "Source", "Pause", "Approve"));
}

TEST_F(ApprovalsTest, AStepChipIsPaddedByTenAndSevenPoints) {
  auto* label = labelled(card(replies), "Holding send");
  const auto inside = boundsIn(*label->get_parent(), *label);
  EXPECT_EQ(inside.get_x(), 10);
  EXPECT_EQ(inside.get_y(), 7);
  EXPECT_EQ(label->get_parent()->get_width(), inside.get_width() + 20);
}

TEST_F(ApprovalsTest, ChangedStepsReplaceTheChips) {
  show({gate("a", ApprovalState::waiting, {"One", "Two"})});
  show({gate("a", ApprovalState::waiting, {"Three"})});
  EXPECT_THAT(texts(card("Gate a")), ElementsAre("Gate a", "Needs review", "Risk", "Summary", "Agent",
                                                 "Source", "Three", "Pause", "Approve"));
}

TEST_F(ApprovalsTest, TheRiskPillIsClayWhateverItsText) {
  for (const auto& title : {replies, adSpend, callbacks}) {
    EXPECT_TRUE(riskPill(title).has_css_class("tone-clay"));
    EXPECT_FALSE(riskPill(title).has_css_class("pill-prominent"));
  }
}

TEST_F(ApprovalsTest, AnEmptyListShowsOnlyTheHeader) {
  show({});
  EXPECT_THAT(texts(view_), ElementsAre("HUMAN GATES", "Important actions wait here", ::testing::_));
}

TEST_F(ApprovalsTest, AssistiveTechnologyHearsTheObjectOfEachDecision) {
  EXPECT_TRUE(hasAccessibleName(approveButton(replies), "Approve Send three delayed order replies"));
  EXPECT_TRUE(hasAccessibleName(pauseButton(replies), "Pause Send three delayed order replies"));
}

TEST_F(ApprovalsTest, ApprovingTouchesNoWidgetOfTheOtherGatesAndReplacesNone) {
  auto* before = &approveButton(adSpend);
  auto* own = &approveButton(replies);
  const int y = boundsIn(view_, *before).get_y();
  click(*own);
  draw();
  EXPECT_EQ(&approveButton(adSpend), before);
  EXPECT_EQ(&approveButton(replies), own);
  EXPECT_EQ(boundsIn(view_, *before).get_y(), y);
}

TEST_F(ApprovalsTest, AfterADecisionTheGateItselfHasTheFocusAndNoButtonOfAnother) {
  show({gate("a", ApprovalState::waiting), gate("b", ApprovalState::waiting)});
  pauseButton("Gate a").grab_focus();
  click(pauseButton("Gate a"));
  draw();
  EXPECT_EQ(focused(), &row("Gate a"));
  approveButton("Gate b").grab_focus();
  click(approveButton("Gate b"));
  draw();
  EXPECT_EQ(focused(), &row("Gate b"));
}

TEST_F(ApprovalsTest, TabLeadsFromADecidedGateToTheNextOneThatWaits) {
  show({gate("a", ApprovalState::waiting), gate("b", ApprovalState::paused),
        gate("c", ApprovalState::waiting)});
  approveButton("Gate a").grab_focus();
  click(approveButton("Gate a"));
  draw();
  tab(Gtk::DirectionType::TAB_FORWARD);
  EXPECT_EQ(focused(), &pauseButton("Gate c"));
  tab(Gtk::DirectionType::TAB_BACKWARD);
  EXPECT_NE(focused(), &row("Gate a")) << "a decided gate is no stop on the way";
}

TEST_F(ApprovalsTest, TheFocusFollowsItsGateWhateverComesInFrontOfIt) {
  show({gate("a", ApprovalState::waiting), gate("b", ApprovalState::waiting)});
  approveButton("Gate b").grab_focus();
  show({gate("n", ApprovalState::waiting), gate("b", ApprovalState::waiting),
        gate("a", ApprovalState::waiting)});
  EXPECT_EQ(focused(), &approveButton("Gate b"));
}

TEST_F(ApprovalsTest, TheFocusStaysWhereItIsWhenAnotherGateIsDecided) {
  approveButton(adSpend).grab_focus();
  store_.approveFirstPending();
  draw();
  EXPECT_EQ(focused(), &approveButton(adSpend));
}

TEST_F(ApprovalsTest, WhereTheGateWithTheFocusIsGoneTheOneInItsPlaceHasItAsAWhole) {
  show({gate("a", ApprovalState::waiting), gate("b", ApprovalState::waiting)});
  approveButton("Gate a").grab_focus();
  show({gate("b", ApprovalState::waiting)});
  EXPECT_EQ(focused(), &row("Gate b"));
  tab(Gtk::DirectionType::TAB_FORWARD);
  EXPECT_EQ(focused(), &pauseButton("Gate b"));
}

TEST_F(ApprovalsTest, WhereTheLastGateIsGoneTheOneBeforeItHasTheFocus) {
  show({gate("a", ApprovalState::waiting), gate("b", ApprovalState::waiting)});
  pauseButton("Gate b").grab_focus();
  show({gate("a", ApprovalState::waiting)});
  EXPECT_EQ(focused(), &row("Gate a"));
  show({});
  EXPECT_EQ(focused(), nullptr);
}

/// A thousand gates in a scrolled screen.
class ManyGatesTest : public ::testing::Test {
 protected:
  ManyGatesTest() {
    RecordList<ApprovalItem> gates;
    for (int i = 0; i < 1'000; ++i)
      gates.push_back(gate(std::to_string(i), ApprovalState::waiting));
    store_.approvals = std::move(gates);
    scroller_.set_child(*Gtk::make_managed<ApprovalsView>(store_));
    drawFrame(scroller_);
  }

  std::size_t gateCount() { return all<StatusPill>(scroller_).size() / 2; }
  void scrollTo(double part) {
    const auto scroll = scroller_.get_vadjustment();
    scroll->set_value(part * scroll->get_upper());
    drawFrame(scroller_);
  }

  WorkspaceStore store_;
  Gtk::ScrolledWindow scroller_;
  TestWindow window_{scroller_, 852, 700};
};

TEST_F(ManyGatesTest, OnlyThoseNearSightExist) {
  EXPECT_THAT(gateCount(), AllOf(Gt(3U), Lt(30U)));
  scrollTo(1);
  EXPECT_TRUE(labelled(scroller_, "Gate 999"));
  EXPECT_LT(gateCount(), 30U);
}

TEST_F(ManyGatesTest, TheOneWithTheFocusStaysWhileItIsScrolledAwayAndIsTheOneDecided) {
  auto* approve = all<Gtk::Button>(scroller_).at(1);
  approve->grab_focus();
  scrollTo(0.5);
  EXPECT_EQ(window_.get_focus(), approve);
  click(*approve);
  drawFrame(scroller_);
  EXPECT_EQ(store_.approvals->at(0).state, ApprovalState::approved);
  EXPECT_EQ(store_.approvals->at(1).state, ApprovalState::waiting);
}

} // namespace
} // namespace quorvel
