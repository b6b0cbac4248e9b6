#include "console/OverviewView.h"

#include "brand/BrandMark.h"
#include "brand/MetricTile.h"
#include "brand/QuorvelBrand.h"
#include "support/TestWindow.h"

namespace quorvel {
namespace {

using namespace quorvel::tests;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

class OverviewTest : public ::testing::Test {
 protected:
  void draw() { drawFrame(*view_); }
  void press(const std::string& name) {
    click(*buttonNamed(*view_, name));
    draw();
  }
  /// Leaves the command centre for another section and comes back to it.
  void leaveAndComeBack() {
    window_.reset();
    view_ = std::make_unique<OverviewView>(store_);
    window_ = std::make_unique<TestWindow>(*view_, 852);
  }

  Gtk::Widget& cardWith(const std::string& text) {
    Gtk::Widget* widget = labelled(*view_, text);
    while (!widget->has_css_class("quorvel-card"))
      widget = widget->get_parent();
    return *widget;
  }
  Gtk::Widget& thread() { return cardWith("Chats"); }
  Gtk::Widget& queue() { return cardWith("Live queue"); }
  Gtk::Widget& activity() { return cardWith("Activity"); }
  Gdk::Rectangle bounds(const Gtk::Widget& widget) { return boundsIn(*view_, widget); }
  Gtk::Entry& draft() { return *all<Gtk::Entry>(*view_).at(0); }
  std::vector<std::string> figures() {
    std::vector<std::string> result;
    for (auto* tile : all<MetricTile>(*view_))
      result.push_back(texts(*tile).at(1));
    return result;
  }
  std::vector<int> shownMarks() {
    std::vector<int> sizes;
    for (auto* mark : all<BrandMark>(*view_))
      if (mark->get_mapped())
        sizes.push_back(mark->get_width());
    return sizes;
  }

  WorkspaceStore store_;
  std::unique_ptr<OverviewView> view_ = std::make_unique<OverviewView>(store_);
  std::unique_ptr<TestWindow> window_ = std::make_unique<TestWindow>(*view_, 852);
};

TEST_F(OverviewTest, TheTilesReadThreeTwoFourAndSevenWithTheSampleWorkspace) {
  EXPECT_THAT(figures(), ElementsAre("3", "2", "4", "7"));
  const auto tiles = all<MetricTile>(*view_);
  EXPECT_THAT(texts(*tiles.at(0)), ElementsAre("Active requests", "3", "Routed or drafting"));
  EXPECT_THAT(texts(*tiles.at(1)), ElementsAre("Approval queue", "2", "Waiting on you"));
  EXPECT_THAT(texts(*tiles.at(2)), ElementsAre("Agents working", "4", "Currently active"));
  EXPECT_THAT(texts(*tiles.at(3)), ElementsAre("Connected tools", "7", "Synced sources"));
}

TEST_F(OverviewTest, TheFiguresFollowTheStoreAndShowZeroToo) {
  store_.requests = {};
  store_.approveFirstPending();
  store_.approveFirstPending();
  store_.agents = {};
  store_.connectors = {};
  draw();
  EXPECT_THAT(figures(), ElementsAre("0", "0", "0", "0"));
}

TEST_F(OverviewTest, SendWithAnEmptyFieldStillCreatesARequestAndTurnsToTheRequests) {
  draft().set_text("");
  press("Send request");
  EXPECT_EQ(store_.requests->size(), 5U);
  EXPECT_EQ(store_.requests->front().title, "New workspace request");
  EXPECT_EQ(store_.selectedSection, WorkspaceSection::requests);
  EXPECT_EQ(draft().get_text(), "");
}

TEST_F(OverviewTest, SendNeitherReadsNorClearsTheDraft) {
  draft().set_text("A wish of my own");
  press("Send request");
  EXPECT_EQ(store_.requests->front().title, "New workspace request");
  EXPECT_EQ(draft().get_text(), "A wish of my own");
}

TEST_F(OverviewTest, NewRequestDoesWhatSendDoes) {
  const auto withoutIds = [](const WorkspaceStore& store) {
    auto request = store.requests->front();
    auto entry = store.activity->front();
    request.id = entry.id = "";
    return std::tuple(request, entry, store.selectedSection.get(), store.requests->size());
  };
  press("New Request");
  WorkspaceStore other;
  OverviewView otherView(other);
  TestWindow window(otherView, 852);
  click(*buttonNamed(otherView, "Send request"));
  EXPECT_EQ(withoutIds(store_), withoutIds(other));
  EXPECT_EQ(store_.requests->size(), 5U);
}

TEST_F(OverviewTest, TheButtonsLeadToTheirSections) {
  press("Review Queue");
  EXPECT_EQ(store_.selectedSection, WorkspaceSection::approvals);
  press("Connectors");
  EXPECT_EQ(store_.selectedSection, WorkspaceSection::connectors);
  press("Open");
  EXPECT_EQ(store_.selectedSection, WorkspaceSection::requests);
  EXPECT_EQ(store_.requests->size(), 4U);
}

TEST_F(OverviewTest, ReviewOnTheApprovalSnippetIsALabelAndNoButton) {
  auto* review = labelled(*view_, "Review");
  ASSERT_NE(review, nullptr);
  EXPECT_EQ(review->get_ancestor(GTK_TYPE_BUTTON), nullptr);
  EXPECT_EQ(buttonNamed(*view_, "Review"), nullptr);
  EXPECT_FALSE(review->get_focusable());
  const auto plate = bounds(*review->get_parent());
  const auto inside = boundsIn(*review->get_parent(), *review);
  EXPECT_EQ(inside.get_x(), 18);
  EXPECT_EQ(inside.get_y(), 10);
  EXPECT_THAT(window_->pixel(plate.get_x() + 6, plate.get_y() + 6), IsColor(QuorvelBrand::control));
}

TEST_F(OverviewTest, TheThreadIsFixedTextThatDoesNotGrowWhenAMessageIsSent) {
  const auto before = texts(thread());
  EXPECT_THAT(before, ElementsAre("Chats", "Ask, monitor, approve.", "Live", "MAIN AGENT",
                                  "What should move today?", "Ask, monitor, approve.", "YOU",
                                  "Show me anything waiting for approval.", "ORDER AGENT",
                                  "Three order replies are drafted.", "Nothing sends until you approve.",
                                  "APPROVAL READY", "Send 3 customer updates", "Review"));
  press("Send request");
  EXPECT_EQ(texts(thread()), before);
}

TEST_F(OverviewTest, AnAgentsBubbleStandsAtTheLeftAndTheUsersAtTheRight) {
  const auto bubbleOf = [&](const char* role) {
    return bounds(*labelled(*view_, role)->get_parent()->get_parent());
  };
  const auto card = bounds(thread());
  const auto agent = bubbleOf("MAIN AGENT");
  const auto user = bubbleOf("YOU");
  EXPECT_EQ(agent.get_x(), card.get_x() + 18);
  EXPECT_LE(agent.get_x() + agent.get_width(), card.get_x() + card.get_width() - 18 - 72);
  EXPECT_EQ(user.get_x() + user.get_width(), card.get_x() + card.get_width() - 18);
  EXPECT_GE(user.get_x(), card.get_x() + 18 + 72);
  EXPECT_THAT(window_->pixel(user.get_x() + 8, user.get_y() + 8), IsColor(Color{0.02, 0.105, 0.22}));
  EXPECT_THAT(window_->pixel(agent.get_x() + 8, agent.get_y() + 8), IsColor(QuorvelBrand::panelRaised));
}

TEST_F(OverviewTest, TheRoleOfABubbleHasTheToneOfItsAgentAndTheUsersIsWhite) {
  EXPECT_THAT(inkOf(*labelled(*view_, "MAIN AGENT")), IsColor(QuorvelBrand::blue));
  EXPECT_THAT(inkOf(*labelled(*view_, "ORDER AGENT")), IsColor(QuorvelBrand::green));
  EXPECT_THAT(inkOf(*labelled(*view_, "YOU")), IsColor(Color::white()));
}

TEST_F(OverviewTest, ReturnInTheFieldCreatesNothing) {
  draft().grab_focus();
  g_signal_emit_by_name(draft().get_first_child()->gobj(), "activate");
  draw();
  EXPECT_EQ(store_.requests->size(), 4U);
  EXPECT_EQ(store_.selectedSection, WorkspaceSection::overview);
  EXPECT_EQ(draft().get_text(), "Ask Quorvel to review open customer updates");
}

TEST_F(OverviewTest, AHalfTypedDraftIsGoneAfterLeavingAndComingBack) {
  EXPECT_EQ(draft().get_text(), "Ask Quorvel to review open customer updates");
  EXPECT_EQ(draft().get_placeholder_text(), "Message Quorvel");
  draft().set_text("Half a");
  leaveAndComeBack();
  EXPECT_EQ(draft().get_text(), "Ask Quorvel to review open customer updates");
}

TEST_F(OverviewTest, ARefreshKeepsTheDraftAndTheFocusInTheField) {
  draft().grab_focus();
  draft().set_text("Half a");
  store_.toggleConnector(store_.connectors->front());
  draw();
  EXPECT_EQ(draft().get_text(), "Half a");
  EXPECT_TRUE(window_->get_focus()->is_ancestor(draft()));
}

TEST_F(OverviewTest, TheDraftIsPaddedByTwelveAndTenPointsAndTheSendButtonIsRound) {
  auto* field = draft().get_first_child();
  const auto inside = boundsIn(draft(), *field);
  EXPECT_EQ(inside.get_x(), 0) << "the padding lies outside the entry's own coordinates";
  EXPECT_EQ(draft().get_allocation().get_width(), field->get_width() + 24);
  EXPECT_EQ(draft().get_allocation().get_height(), field->get_height() + 20);
  const auto& send = *buttonNamed(*view_, "Send request");
  EXPECT_EQ(send.get_allocation().get_width(), send.get_allocation().get_height());
}

TEST_F(OverviewTest, TheQueueShowsTheFirstThreeRequestsWithStatusAndProgress) {
  EXPECT_THAT(texts(queue()),
              ElementsAre("Live queue", "Open", "Delayed order customer updates", "Order Management Agent",
                          "Waiting", "Retargeting spend review", "Ads Agent", "Drafting",
                          "Founder weekly plan", "Planning Agent", "Routed"));
  const auto bars = all<Gtk::ProgressBar>(queue());
  ASSERT_EQ(bars.size(), 3U);
  EXPECT_DOUBLE_EQ(bars[0]->get_fraction(), 0.84);
  EXPECT_TRUE(bars[0]->has_css_class("tone-gold"));
  EXPECT_DOUBLE_EQ(bars[2]->get_fraction(), 0.34);
  EXPECT_TRUE(bars[2]->has_css_class("tone-blue"));
}

TEST_F(OverviewTest, AfterThreeNewRequestsTheQueueShowsThemAloneAndTheActivityTheNewestOlderEntryToo) {
  for (int i = 0; i < 3; ++i)
    store_.createRequest();
  draw();
  EXPECT_THAT(texts(queue()), ElementsAre("Live queue", "Open", "New workspace request", "Main Agent",
                                          "Routed", "New workspace request", "Main Agent", "Routed",
                                          "New workspace request", "Main Agent", "Routed"));
  EXPECT_THAT(texts(activity()),
              ElementsAre("Activity", "Request created", "Now",
                          "Main Agent is routing a fresh desktop request.", "Request created", "Now",
                          "Main Agent is routing a fresh desktop request.", "Request created", "Now",
                          "Main Agent is routing a fresh desktop request.", "Draft ready", "4 min ago",
                          "Order Agent prepared three customer replies."));
}

TEST_F(OverviewTest, FewerRecordsMakeFewerRowsAndNoneLeaveTheHeadings) {
  store_.requests.update([](auto& list) { list.resize(1); });
  store_.activity.update([](auto& list) { list.resize(2); });
  draw();
  EXPECT_EQ(all<Gtk::ProgressBar>(queue()).size(), 1U);
  EXPECT_THAT(texts(activity()), AllOf(Contains("Route changed"), Not(Contains("Connector synced"))));
  store_.requests = {};
  store_.activity = {};
  draw();
  EXPECT_THAT(texts(queue()), ElementsAre("Live queue", "Open"));
  EXPECT_THAT(texts(activity()), ElementsAre("Activity"));
  EXPECT_EQ(activity().get_height(), labelled(*view_, "Activity")->get_height() + 36) << "no gap is left";
}

TEST_F(OverviewTest, AnActivityRowHasABarOfSevenByTwentyEightInItsTone) {
  auto* row = labelled(*view_, "Approval paused")->get_parent()->get_parent()->get_parent();
  const auto bar = bounds(*row->get_first_child());
  EXPECT_EQ(bar.get_width(), 7);
  EXPECT_EQ(bar.get_height(), 28);
  EXPECT_THAT(window_->pixel(bar.get_x() + 3, bar.get_y() + 14), IsColor(color(AccentTone::slate)));
  const auto timestamp = bounds(*labelled(*view_, "38 min ago"));
  EXPECT_EQ(timestamp.get_x() + timestamp.get_width(), bounds(*row).get_x() + bounds(*row).get_width());
}

TEST_F(OverviewTest, ALongActivityDetailIsCutAfterItsSecondLine) {
  store_.activity.update([](auto& list) {
    for (int i = 0; i < 40; ++i)
      list.front().detail += " and on it goes";
  });
  draw();
  auto* detail = labelled(*view_, store_.activity->front().detail);
  EXPECT_EQ(detail->get_layout()->get_line_count(), 2);
  EXPECT_TRUE(detail->get_layout()->is_ellipsized());
}

TEST_F(OverviewTest, ALongRequestTitleStaysOnOneLineAndTheArrangementAsItIs) {
  store_.requests.update([](auto& list) {
    for (int i = 0; i < 20; ++i)
      list.front().title += " and on it goes";
  });
  draw();
  auto* title = labelled(*view_, store_.requests->front().title);
  EXPECT_EQ(title->get_layout()->get_line_count(), 1);
  EXPECT_TRUE(title->get_layout()->is_ellipsized());
  EXPECT_EQ(bounds(queue()).get_y(), bounds(thread()).get_y()) << "side by side as before";
}

TEST_F(OverviewTest, TheWorkAreaStandsSideBySideDownToTheWidthItNeedsAndBelowThatStacks) {
  window_->resize(420 + 18 + 340);
  EXPECT_EQ(bounds(thread()).get_width(), 420);
  EXPECT_EQ(bounds(queue()).get_x(), 438);
  EXPECT_EQ(bounds(queue()).get_width(), 340);
  EXPECT_EQ(bounds(queue()).get_y(), bounds(thread()).get_y());
  EXPECT_EQ(bounds(activity()).get_y(), bounds(queue()).get_y() + bounds(queue()).get_height() + 18);
  window_->resize(420 + 18 + 340 - 1);
  EXPECT_EQ(bounds(thread()).get_width(), 777);
  EXPECT_EQ(bounds(queue()).get_x(), 0);
  EXPECT_EQ(bounds(queue()).get_width(), 777);
  EXPECT_EQ(bounds(queue()).get_y(), bounds(thread()).get_y() + bounds(thread()).get_height() + 18);
}

TEST_F(OverviewTest, TheHeroShowsItsLargeMarkExactlyAsLongAsItsNaturalWidthFits) {
  auto* copy = labelled(*view_, "Quorvel is a command tool.")->get_parent()->get_parent();
  int least, natural, ignored;
  copy->measure(Gtk::Orientation::HORIZONTAL, -1, least, natural, ignored, ignored);
  const int needed = 24 + natural + 28 + 24 + 28 + 104 + 24;
  EXPECT_LE(needed, 852) << "the console's narrowest centre column has the wide form";
  window_->resize(needed);
  EXPECT_THAT(shownMarks(), ElementsAre(104));
  window_->resize(needed - 1);
  EXPECT_THAT(shownMarks(), ElementsAre(74));
}

TEST_F(OverviewTest, TheTilesStandInFourColumnsDownTo714PointsAndInFewerBelow) {
  const auto rowOf = [&](std::size_t tile) { return bounds(*all<MetricTile>(*view_).at(tile)).get_y(); };
  window_->resize(4 * 168 + 3 * 14);
  EXPECT_EQ(rowOf(3), rowOf(0));
  EXPECT_EQ(bounds(*all<MetricTile>(*view_).at(1)).get_x(), 168 + 14);
  window_->resize(4 * 168 + 3 * 14 - 1);
  EXPECT_EQ(rowOf(2), rowOf(0));
  EXPECT_EQ(rowOf(3), rowOf(0) + all<MetricTile>(*view_).at(0)->get_height() + 14);
}

} // namespace
} // namespace quorvel
