#include "console/InspectorPanel.h"

#include "brand/QuorvelBrand.h"
#include "brand/StatusPill.h"
#include "support/TestWindow.h"

namespace quorvel {
namespace {

using namespace quorvel::tests;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsSupersetOf;
using ::testing::Not;

class InspectorTest : public ::testing::Test {
 protected:
  std::vector<std::string> shown() {
    drawFrame(inspector_);
    return texts(inspector_);
  }
  /// The figure above a tile's caption.
  std::string figure(const std::string& caption) {
    const auto all = shown();
    return *(std::ranges::find(all, caption) - 1);
  }
  std::vector<Gtk::Widget*> cards() {
    std::vector<Gtk::Widget*> found;
    for (auto* pill : all<StatusPill>(inspector_))
      found.push_back(pill->get_parent()->get_parent());
    return found;
  }
  Gdk::Rectangle bounds(Gtk::Widget& widget) { return boundsIn(inspector_, widget); }

  WorkspaceStore store_;
  InspectorPanel inspector_{store_};
  TestWindow window_{inspector_, 320};
};

TEST_F(InspectorTest, ShowsTheSampleWorkspaceFromTheHeaderToTheOldestEntry) {
  EXPECT_THAT(shown(),
              ElementsAre("Command Center", "Today at a glance",                                   //
                          "3", "Active requests", "2", "Pending approvals", "7", "Connected apps", //
                          "Priority",                                                              //
                          "Needs review", "Order Management Agent", "Send three delayed order replies",
                          "Needs review", "Ads Agent", "Shift $240 from broad audience to retargeting",
                          "Paused", "Voice Scheduling Agent", "Book two consultation callbacks", //
                          "Recent activity",                                                     //
                          "Draft ready", "4 min ago", "Route changed", "11 min ago", "Connector synced",
                          "26 min ago", "Approval paused", "38 min ago"));
}

TEST_F(InspectorTest, TheHeaderNamesTheSectionThatIsSelected) {
  store_.selectedSection = WorkspaceSection::security;
  EXPECT_THAT(shown(), IsSupersetOf({"Trust", "Controls"}));
  EXPECT_THAT(shown(), Not(Contains("Command Center")));
  EXPECT_EQ(all<Gtk::Image>(inspector_).front()->get_icon_name(), "lock.shield.600-symbolic");
}

TEST_F(InspectorTest, AfterEveryApprovalIsApprovedTheFirstThreeAreStillThereAndNoneIsPending) {
  const auto approvals = *store_.approvals;
  for (const auto& approval : approvals)
    store_.approve(approval);
  EXPECT_EQ(figure("Pending approvals"), "0");
  ASSERT_EQ(cards().size(), 3U);
  for (std::size_t i = 0; i < 3; ++i)
    EXPECT_THAT(texts(*cards()[i]), ElementsAre("Approved", approvals[i].agent, approvals[i].title));
  for (auto* pill : all<StatusPill>(inspector_))
    EXPECT_TRUE(pill->has_css_class("tone-green"));
}

TEST_F(InspectorTest, WithOneApprovalAndTwoEntriesThereAreOneCardAndTwoRows) {
  store_.approvals.update([](auto& list) { list.resize(1, list.front()); });
  store_.activity.update([](auto& list) { list.resize(2, list.front()); });
  const auto all = shown();
  EXPECT_EQ(cards().size(), 1U);
  EXPECT_THAT(std::vector(std::ranges::find(all, "Recent activity"), all.end()),
              ElementsAre("Recent activity", "Draft ready", "4 min ago", "Route changed", "11 min ago"));
}

TEST_F(InspectorTest, WithNoApprovalAndNoEntryOnlyTheHeadingsRemain) {
  store_.approvals = {};
  store_.activity = {};
  const auto all = shown();
  EXPECT_THAT(std::vector(std::ranges::find(all, "Connected apps"), all.end()),
              ElementsAre("Connected apps", "Priority", "Recent activity"));
  const auto priority = bounds(*labelled(inspector_, "Priority"));
  EXPECT_EQ(bounds(*labelled(inspector_, "Recent activity")).get_y(),
            priority.get_y() + priority.get_height() + 18)
      << "no gap is kept for the cards";
}

TEST(EmptyInspector, AListThatWasEmptyFromTheStartAppearsWhenItIsNoLonger) {
  WorkspaceStore store;
  const auto approvals = *store.approvals;
  store.approvals = {};
  InspectorPanel inspector{store};
  TestWindow stage{inspector, 320};
  store.approvals = approvals;
  drawFrame(inspector);
  EXPECT_EQ(all<StatusPill>(inspector).size(), 3U);
  EXPECT_NE(labelled(inspector, approvals.front().title), nullptr);
}

TEST_F(InspectorTest, FiguresAreShownAtNoughtToo) {
  store_.requests = {};
  store_.approvals = {};
  store_.connectors = {};
  EXPECT_EQ(figure("Active requests"), "0");
  EXPECT_EQ(figure("Pending approvals"), "0");
  EXPECT_EQ(figure("Connected apps"), "0");
}

TEST_F(InspectorTest, FiguresHaveNoGrouping) {
  store_.requests.update([](auto& list) {
    list.resize(12345, list.front());
    for (std::size_t i = 0; i < list.size(); ++i)
      list[i].id = std::to_string(i);
  });
  const auto expected = std::to_string(store_.activeRequestCount());
  EXPECT_EQ(expected.size(), 5U);
  EXPECT_EQ(figure("Active requests"), expected);
}

TEST_F(InspectorTest, OnlyTheFirstThreeApprovalsAndTheNewestFourEntriesAreShown) {
  store_.approvals.update([](auto& list) {
    auto fourth = list.front();
    fourth.id = "fourth";
    fourth.title = "A fourth gate";
    list.push_back(fourth);
  });
  store_.createRequest();
  EXPECT_THAT(shown(), Not(Contains("A fourth gate")));
  EXPECT_THAT(shown(), IsSupersetOf({"Request created", "Now"}));
  EXPECT_THAT(shown(), Not(Contains("38 min ago"))) << "the fifth newest has made room";
}

TEST_F(InspectorTest, AnEntrysDetailIsNotShown) {
  EXPECT_THAT(shown(), Not(Contains(store_.activity->front().detail)));
}

TEST_F(InspectorTest, ALongApprovalTitleIsCutAfterItsSecondLine) {
  const std::string title = "A title that goes on and on, well past what two lines of this narrow card can "
                            "hold, and therefore ends in an ellipsis";
  store_.approvals.update([&](auto& list) { list.front().title = title; });
  drawFrame(inspector_);
  const auto layout = labelled(inspector_, title)->get_layout();
  EXPECT_EQ(layout->get_line_count(), 2);
  EXPECT_TRUE(layout->is_ellipsized());
}

TEST_F(InspectorTest, ALongActivityTitleTakesAllTheLinesItNeeds) {
  const std::string title = "An entry whose title goes on and on, well past what two lines of this narrow "
                            "column can hold, and is shown whole all the same, down to its last word";
  store_.activity.update([&](auto& list) { list.front().title = title; });
  drawFrame(inspector_);
  const auto layout = labelled(inspector_, title)->get_layout();
  EXPECT_GT(layout->get_line_count(), 2);
  EXPECT_FALSE(layout->is_ellipsized());
}

TEST_F(InspectorTest, ApprovingOneGateTouchesOneCard) {
  std::vector<Gtk::Widget*> touched;
  const auto before = cards();
  for (auto* card : before)
    for (auto* label : all<Gtk::Label>(*card))
      label->property_label().signal_changed().connect([&touched, card] { touched.push_back(card); });
  store_.approve(store_.approvals->at(1));
  drawFrame(inspector_);
  EXPECT_EQ(cards(), before) << "the widgets stay";
  EXPECT_THAT(touched, Not(::testing::IsEmpty()));
  EXPECT_THAT(touched, Each(before[1]));
}

TEST_F(InspectorTest, HasThePaddingsAndSpacingsOfTheDrawing) {
  const auto tile =
      bounds(*labelled(inspector_, "Active requests")->get_parent()->get_parent()->get_parent());
  EXPECT_EQ(tile.get_x(), 18);
  EXPECT_EQ(tile.get_width(), 320 - 2 * 18);
  EXPECT_EQ(bounds(*labelled(inspector_, "3")).get_x(), 18 + 12);
  EXPECT_EQ(bounds(*labelled(inspector_, "3")).get_y(), tile.get_y() + 12);
  const auto next =
      bounds(*labelled(inspector_, "Pending approvals")->get_parent()->get_parent()->get_parent());
  EXPECT_EQ(next.get_y(), tile.get_y() + tile.get_height() + 10);
  const auto card = bounds(*cards()[0]->get_parent());
  EXPECT_EQ(card.get_x(), 18);
  EXPECT_EQ(card.get_width(), 320 - 2 * 18);
  EXPECT_EQ(bounds(*cards()[1]->get_parent()).get_y(), card.get_y() + card.get_height() + 10);
}

TEST_F(InspectorTest, AFiguresBadgeIsADotInAPaleCircle) {
  const auto* tile = labelled(inspector_, "Active requests")->get_parent()->get_parent();
  auto& badge = *const_cast<Gtk::Widget&>(*tile).get_last_child();
  const auto circle = bounds(badge);
  const auto dot = bounds(*badge.get_first_child());
  EXPECT_EQ(circle.get_width(), 24);
  EXPECT_EQ(circle.get_height(), 24);
  EXPECT_EQ(circle.get_x() + circle.get_width(), 320 - 18 - 12);
  EXPECT_EQ(dot.get_width(), 8);
  EXPECT_EQ(dot.get_x(), circle.get_x() + 8);
  EXPECT_EQ(dot.get_y(), circle.get_y() + 8);
  EXPECT_THAT(window_.pixel(dot.get_x() + 4, dot.get_y() + 4), IsColor(QuorvelBrand::blue));
}

TEST_F(InspectorTest, ADotStandsLevelWithTheFirstLineOfItsEntry) {
  const auto title = bounds(*labelled(inspector_, "Draft ready"));
  auto& row = *labelled(inspector_, "Draft ready")->get_parent()->get_parent();
  const auto dot = bounds(*row.get_first_child());
  EXPECT_EQ(dot.get_width(), 8);
  EXPECT_EQ(dot.get_y(), title.get_y() + 6);
  EXPECT_EQ(title.get_x(), dot.get_x() + 8 + 10);
}

TEST_F(InspectorTest, TheColumnIsFilledToTheFootAndItsContentStandsAtTheTop) {
  const int headerAt = bounds(*labelled(inspector_, "Command Center")).get_y();
  window_.resize(320, 1100);
  EXPECT_EQ(bounds(*labelled(inspector_, "Command Center")).get_y(), headerAt);
  EXPECT_THAT(window_.pixel(160, 1095), IsColor(Color{0.03, 0.031, 0.033}));
}

} // namespace
} // namespace quorvel
