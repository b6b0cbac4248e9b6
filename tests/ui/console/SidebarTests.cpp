#include "console/SidebarView.h"

#include "brand/QuorvelBrand.h"
#include "support/TestWindow.h"

namespace quorvel {
namespace {

using namespace quorvel::tests;
using ::testing::ElementsAre;

class SidebarTest : public ::testing::Test {
 protected:
  Gtk::Button& row(WorkspaceSection section) { return *buttonNamed(sidebar_, std::string(title(section))); }
  /// The texts of a section's row: title, subtitle and, where there is one, its badge.
  std::vector<std::string> rowTexts(WorkspaceSection section) { return texts(row(section)); }
  std::vector<WorkspaceSection> selectedRows() {
    std::vector<WorkspaceSection> selected;
    for (const auto section : allCases<WorkspaceSection>())
      if (isAccessiblySelected(row(section)))
        selected.push_back(section);
    return selected;
  }
  void setApprovals(ApprovalState state) {
    store_.approvals.update([&](auto& list) {
      for (auto& item : list)
        item.state = state;
    });
    draw();
  }
  /// Short name and load of every agent shown.
  std::vector<std::string> agentTexts() {
    const auto all = texts(sidebar_);
    return {std::ranges::find(all, "Active agents") + 1, std::ranges::find(all, "LIVE MONITOR")};
  }
  Gdk::Rectangle bounds(const Gtk::Widget& widget) { return boundsIn(sidebar_, widget); }
  /// What is drawn in a row's padding.
  Color groundOf(const Gtk::Widget& button) {
    return window_.pixel(bounds(button).get_x() - 6, bounds(button).get_y() - 4);
  }
  Color leftOf(const Gtk::Widget& badge) {
    const auto place = bounds(badge);
    return window_.pixel(place.get_x() - 4, place.get_y() + place.get_height() / 2);
  }
  void draw() { drawFrame(sidebar_); }

  WorkspaceStore store_;
  SidebarView sidebar_{store_};
  TestWindow window_{sidebar_, 272, 760};
};

TEST_F(SidebarTest, ShowsNoBarWhereItScrolls) {
  SidebarView low(store_);
  const TestWindow window(low, 272, 500);
  const auto* scroller = all<Gtk::ScrolledWindow>(low).front();
  EXPECT_GT(scroller->get_vadjustment()->get_upper(), scroller->get_height());
  for (auto* bar : all<Gtk::Scrollbar>(low))
    EXPECT_FALSE(bar->get_mapped());
}

TEST_F(SidebarTest, ShowsTheEightSectionsInOrderWithTheThreeBadgesOfTheSampleWorkspace) {
  EXPECT_THAT(rowTexts(WorkspaceSection::overview), ElementsAre("Command Center", "Today at a glance"));
  EXPECT_THAT(rowTexts(WorkspaceSection::agents), ElementsAre("Agent Team", "Specialized helpers"));
  EXPECT_THAT(rowTexts(WorkspaceSection::requests), ElementsAre("Live Requests", "Queued work", "3"));
  EXPECT_THAT(rowTexts(WorkspaceSection::approvals), ElementsAre("Approvals", "Human gates", "2"));
  EXPECT_THAT(rowTexts(WorkspaceSection::connectors), ElementsAre("Connectors", "App access", "7"));
  EXPECT_THAT(rowTexts(WorkspaceSection::browser), ElementsAre("Browser", "Page context"));
  EXPECT_THAT(rowTexts(WorkspaceSection::security), ElementsAre("Trust", "Controls"));
  EXPECT_THAT(rowTexts(WorkspaceSection::pricing), ElementsAre("Plans", "Subscription fit"));
  int above = 0;
  for (const auto section : allCases<WorkspaceSection>()) {
    const int y = boundsIn(sidebar_, row(section)).get_y();
    EXPECT_GT(y, above) << title(section);
    above = y;
  }
}

TEST_F(SidebarTest, TheOverviewIsSelectedAtFirstAndNothingElse) {
  EXPECT_THAT(selectedRows(), ElementsAre(WorkspaceSection::overview));
}

TEST_F(SidebarTest, PressingARowSelectsItsSectionAndNoOther) {
  for (const auto section : allCases<WorkspaceSection>()) {
    click(row(section));
    EXPECT_EQ(*store_.selectedSection, section);
    draw();
    EXPECT_THAT(selectedRows(), ElementsAre(section));
  }
}

TEST_F(SidebarTest, PressingTheSelectedRowAnnouncesAndChangesNothingVisible) {
  const auto textsBefore = texts(sidebar_);
  const auto pictureBefore = window_.picture();
  int announcements = 0;
  store_.objectWillChange().connect([&] { ++announcements; });
  click(row(WorkspaceSection::overview));
  draw();
  EXPECT_EQ(announcements, 1);
  EXPECT_EQ(texts(sidebar_), textsBefore);
  EXPECT_TRUE(window_.picture() == pictureBefore);
}

TEST_F(SidebarTest, WithEveryApprovalDecidedTheApprovalsRowHasNoBadgeAtAll) {
  setApprovals(ApprovalState::approved);
  EXPECT_THAT(rowTexts(WorkspaceSection::approvals), ElementsAre("Approvals", "Human gates"));
  setApprovals(ApprovalState::waiting);
  EXPECT_THAT(rowTexts(WorkspaceSection::approvals), ElementsAre("Approvals", "Human gates", "3"));
}

TEST_F(SidebarTest, WithEveryRequestCompleteTheRequestsRowHasNoBadgeAtAll) {
  store_.requests.update([](auto& list) {
    for (auto& request : list)
      request.status = RequestStatus::complete;
  });
  draw();
  EXPECT_THAT(rowTexts(WorkspaceSection::requests), ElementsAre("Live Requests", "Queued work"));
}

TEST_F(SidebarTest, WithEveryConnectorDisconnectedTheConnectorsRowShowsNought) {
  store_.connectors.update([](auto& list) {
    for (auto& connector : list)
      connector.isConnected = false;
  });
  draw();
  EXPECT_THAT(rowTexts(WorkspaceSection::connectors), ElementsAre("Connectors", "App access", "0"));
}

TEST_F(SidebarTest, BadgesArePlainDecimals) {
  for (int i = 0; i < 1231; ++i)
    store_.createRequest();
  draw();
  EXPECT_THAT(rowTexts(WorkspaceSection::requests), ElementsAre("Live Requests", "Queued work", "1234"));
}

TEST_F(SidebarTest, NewChatSelectsTheRequestsWhoseBadgeRisesByOne) {
  click(*buttonNamed(sidebar_, "+ New chat"));
  draw();
  EXPECT_THAT(selectedRows(), ElementsAre(WorkspaceSection::requests));
  EXPECT_THAT(rowTexts(WorkspaceSection::requests), ElementsAre("Live Requests", "Queued work", "4"));
  EXPECT_EQ(store_.requests->front().title, "New workspace request");
}

TEST_F(SidebarTest, OfEightAgentsOnlyTheFirstFiveAreShownInTheirOrder) {
  EXPECT_THAT(agentTexts(), ElementsAre("Core", "Active", "Plan", "Drafting", "Money", "Review", "Ads",
                                        "Review", "Growth", "Drafting"));
}

TEST_F(SidebarTest, OfSevenAgentsOnlyTheFirstFiveAreShownAndOfThreeAllThree) {
  store_.agents.update([](auto& list) { list.pop_front(); });
  draw();
  EXPECT_THAT(agentTexts(), ElementsAre("Plan", "Drafting", "Money", "Review", "Ads", "Review", "Growth",
                                        "Drafting", "Calls", "Review"));
  store_.agents.update([](auto& list) { list.resize(3, list.front()); });
  draw();
  EXPECT_THAT(agentTexts(), ElementsAre("Plan", "Drafting", "Money", "Review", "Ads", "Review"));
}

TEST_F(SidebarTest, WithNoAgentTheCaptionStandsAlone) {
  store_.agents = {};
  draw();
  EXPECT_THAT(agentTexts(), ElementsAre());
  auto* caption = labelled(sidebar_, "Active agents");
  ASSERT_NE(caption, nullptr);
  auto* card = labelled(sidebar_, "LIVE MONITOR")->get_parent()->get_parent()->get_parent();
  EXPECT_EQ(bounds(*card).get_y(), bounds(*caption).get_y() + caption->get_height() + 22)
      << "no gap is kept for the rows";
}

TEST_F(SidebarTest, AnAgentsRowFollowsItsLoadInPlace) {
  auto* name = labelled(sidebar_, "Plan");
  store_.agents.update([](auto& list) { list[1].load = AgentLoad::idle; });
  draw();
  EXPECT_EQ(labelled(sidebar_, "Plan"), name);
  EXPECT_THAT(agentTexts(), ElementsAre("Core", "Active", "Plan", "Idle", "Money", "Review", "Ads", "Review",
                                        "Growth", "Drafting"));
}

TEST_F(SidebarTest, TheLiveMonitorAlwaysSaysTheSame) {
  store_.requests = {};
  store_.approvals = {};
  store_.agents = {};
  draw();
  auto all = texts(sidebar_);
  all.erase(all.begin(), std::ranges::find(all, "LIVE MONITOR"));
  EXPECT_THAT(all, ElementsAre("LIVE MONITOR", "Live", "Order Agent is holding 3 customer replies."));
}

TEST_F(SidebarTest, TheSelectedRowIsDrawnRaisedAndInStrongerColours) {
  auto& selected = row(WorkspaceSection::overview);
  EXPECT_THAT(inkOf(*all<Gtk::Image>(selected).front()), IsColor(QuorvelBrand::green));
  EXPECT_THAT(inkOf(*labelled(selected, "Command Center")), IsColor(QuorvelBrand::ink));
  EXPECT_THAT(inkOf(*labelled(selected, "Today at a glance")), IsColor(QuorvelBrand::muted));
  EXPECT_THAT(groundOf(selected), IsColor(QuorvelBrand::panelRaised));
}

TEST_F(SidebarTest, AnyOtherRowIsTransparentAndQuieter) {
  auto& other = row(WorkspaceSection::requests);
  EXPECT_THAT(inkOf(*all<Gtk::Image>(other).front()), IsColor(QuorvelBrand::muted));
  EXPECT_THAT(inkOf(*labelled(other, "Live Requests")), IsColor(QuorvelBrand::secondaryInk));
  EXPECT_THAT(inkOf(*labelled(other, "Queued work")), IsColor(QuorvelBrand::muted));
  EXPECT_THAT(groundOf(other), ::testing::Not(IsColor(QuorvelBrand::panelRaised)));
}

TEST_F(SidebarTest, ABadgeTurnsFromALightTextToABlackOneOnALightCapsule) {
  auto& requests = row(WorkspaceSection::requests);
  auto* badge = labelled(requests, "3");
  EXPECT_THAT(inkOf(*badge), IsColor(QuorvelBrand::secondaryInk));
  EXPECT_THAT(leftOf(*badge), IsColor(QuorvelBrand::panelRaised));
  click(requests);
  draw();
  EXPECT_THAT(inkOf(*badge), IsColor(Color::black()));
  EXPECT_THAT(leftOf(*badge), IsColor(QuorvelBrand::control));
}

TEST_F(SidebarTest, HasThePaddingsAndSpacingsOfTheDrawing) {
  EXPECT_EQ(bounds(*labelled(sidebar_, "Quorvel")).get_x(), 18 + 38 + 12);
  EXPECT_GE(bounds(*labelled(sidebar_, "Quorvel")).get_y(), 20);
  const auto newChat = bounds(*buttonNamed(sidebar_, "+ New chat"));
  EXPECT_EQ(newChat.get_x(), 18);
  EXPECT_EQ(newChat.get_width(), 272 - 2 * 18);
  EXPECT_EQ(newChat.get_height(), bounds(*labelled(sidebar_, "+ New chat")).get_height() + 2 * 13);
  EXPECT_EQ(bounds(*labelled(sidebar_, "Workspace")).get_x(), 12 + 16);
  EXPECT_EQ(bounds(*labelled(sidebar_, "Workspace")).get_y(), newChat.get_y() + newChat.get_height() + 18);
  EXPECT_EQ(bounds(*labelled(sidebar_, "Core")).get_x(), 12 + 12 + 9 + 10);
}

TEST_F(SidebarTest, ARowsPaddingLiesOutsideItsButton) {
  const auto first = bounds(row(WorkspaceSection::overview));
  const auto second = bounds(row(WorkspaceSection::agents));
  EXPECT_EQ(first.get_x(), 12 + 12);
  EXPECT_EQ(first.get_width(), 272 - 2 * (12 + 12));
  EXPECT_EQ(second.get_y(), first.get_y() + first.get_height() + 10 + 6 + 10);
  EXPECT_EQ(bounds(*labelled(sidebar_, "Command Center")).get_x(), first.get_x() + 22 + 12);
  const auto badge = bounds(*labelled(row(WorkspaceSection::requests), "3"));
  EXPECT_EQ(badge.get_x() + badge.get_width(), first.get_x() + first.get_width() - 8);
}

TEST_F(SidebarTest, ARowIsNamedByItsTitleAndDescribedByTheRest) {
  EXPECT_TRUE(hasAccessibleName(row(WorkspaceSection::approvals), "Approvals"));
  EXPECT_TRUE(hasAccessibleDescription(row(WorkspaceSection::approvals), "Human gates, 2"));
  EXPECT_TRUE(hasAccessibleName(row(WorkspaceSection::pricing), "Plans"));
  EXPECT_TRUE(hasAccessibleDescription(row(WorkspaceSection::pricing), "Subscription fit"));
  EXPECT_TRUE(hasAccessibleName(*buttonNamed(sidebar_, "+ New chat"), "+ New chat"));
}

TEST_F(SidebarTest, TabReachesNewChatAndThenEveryRowInOrder) {
  std::vector<Gtk::Widget*> expected{buttonNamed(sidebar_, "+ New chat")};
  for (const auto section : allCases<WorkspaceSection>())
    expected.push_back(&row(section));
  expected.front()->grab_focus();
  std::vector<Gtk::Widget*> reached{window_.get_focus()};
  while (reached.size() < expected.size()) {
    sidebar_.child_focus(Gtk::DirectionType::TAB_FORWARD);
    reached.push_back(window_.get_focus());
  }
  EXPECT_EQ(reached, expected);
}

TEST_F(SidebarTest, ARowKeepsTheFocusWhenItIsPressed) {
  auto& plans = row(WorkspaceSection::pricing);
  plans.grab_focus();
  click(plans);
  draw();
  EXPECT_EQ(window_.get_focus(), &plans);
}

TEST_F(SidebarTest, InALowWindowTheBodyScrollsBelowTheHeadAndFollowsTheFocus) {
  window_.resize(272, 400);
  auto& plans = row(WorkspaceSection::pricing);
  EXPECT_GT(bounds(plans).get_y(), 400);
  plans.grab_focus();
  EXPECT_TRUE(eventually([&] { return bounds(plans).get_y() + bounds(plans).get_height() <= 400; }));
  EXPECT_EQ(bounds(*labelled(sidebar_, "Quorvel")).get_x(), 18 + 38 + 12);
  EXPECT_LT(bounds(*buttonNamed(sidebar_, "+ New chat")).get_y(), 100);
}

TEST_F(SidebarTest, ARowThatIsSelectedFromElsewhereIsScrolledIntoView) {
  window_.resize(272, 400);
  for (const auto section :
       {WorkspaceSection::pricing, WorkspaceSection::overview, WorkspaceSection::security}) {
    store_.selectedSection = section;
    draw();
    const auto head = bounds(*buttonNamed(sidebar_, "+ New chat"));
    const auto place = bounds(row(section));
    EXPECT_GE(place.get_y() - 10, head.get_y() + head.get_height()) << title(section);
    EXPECT_LE(place.get_y() + place.get_height() + 10, 400) << title(section);
  }
}

TEST_F(SidebarTest, WhatTheOwnerScrolledToStaysWhenAnotherThingChanges) {
  window_.resize(272, 400);
  auto* scroller = all<Gtk::ScrolledWindow>(sidebar_).front();
  const auto scroll = scroller->get_vadjustment();
  scroll->set_value(scroll->get_upper());
  const double before = scroll->get_value();
  ASSERT_GT(before, 0);
  store_.approveFirstPending();
  draw();
  EXPECT_EQ(scroll->get_value(), before);
}

TEST_F(SidebarTest, AFadeShowsThatMoreLiesBelow) {
  auto* card = labelled(sidebar_, "LIVE MONITOR")->get_parent()->get_parent()->get_parent();
  const auto middleOf = [&](int y) { return window_.pixel(bounds(*card).get_x() + 7, y); };
  window_.resize(272, bounds(*card).get_y() + 30);
  EXPECT_THAT(middleOf(sidebar_.get_height() - 1), IsColor(QuorvelBrand::background));
  window_.resize(272, bounds(*card).get_y() + card->get_height() + 18);
  EXPECT_THAT(middleOf(bounds(*card).get_y() + card->get_height() - 7), IsColor(QuorvelBrand::panelRaised));
}

} // namespace
} // namespace quorvel
