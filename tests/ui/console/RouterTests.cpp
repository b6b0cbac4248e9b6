#include "console/DetailView.h"

#include "brand/QuorvelBrand.h"
#include "console/AgentsView.h"
#include "console/ApprovalsView.h"
#include "console/BrowserWorkspaceView.h"
#include "console/ConnectorsView.h"
#include "console/OverviewView.h"
#include "console/PricingView.h"
#include "console/RequestsView.h"
#include "console/SecurityView.h"
#include "layout/Container.h"
#include "support/Looks.h"
#include "support/TemporaryFolder.h"
#include "support/TestWindow.h"

namespace quorvel {
namespace {

using namespace quorvel::tests;
using ::testing::Contains;
using ::testing::ElementsAre;

/// The router beside a button that stands for the rest of the window.
class RouterTest : public ::testing::Test {
 protected:
  RouterTest() { router_.set_hexpand(true); }
  void select(WorkspaceSection section) {
    store_.selectedSection = section;
    drawFrame(router_);
  }
  Gtk::Widget& screen() { return *dynamic_cast<Gtk::Viewport&>(*router_.get_child()).get_child(); }
  template <class Screen>
  bool shows() {
    return dynamic_cast<Screen*>(&screen()) && all<Screen>(router_).size() == 1;
  }
  Gtk::Widget* focus() { return window_.get_focus(); }
  bool isInView(const Gtk::Widget& widget) {
    const auto bounds = boundsIn(router_, widget);
    return bounds.get_y() >= 0 && bounds.get_y() + bounds.get_height() <= router_.get_height();
  }
  double scrolled() { return router_.get_vadjustment()->get_value(); }

  TemporaryFolder folder_;
  WorkspaceStore store_;
  Preferences preferences_{folder_.path / "preferences.ini"};
  Gtk::Button& outside_ = *Gtk::make_managed<Gtk::Button>("Outside");
  DetailView& router_ = *Gtk::make_managed<DetailView>(store_, preferences_);
  HStack& row_ = *hstack(0, {&outside_, &router_}, VerticalAlignment::fill);
  TestWindow window_{row_, 1000, 760};
};

TEST_F(RouterTest, EverySectionHasItsOwnScreen) {
  EXPECT_TRUE(shows<OverviewView>());
  select(WorkspaceSection::agents);
  EXPECT_TRUE(shows<AgentsView>());
  select(WorkspaceSection::requests);
  EXPECT_TRUE(shows<RequestsView>());
  select(WorkspaceSection::approvals);
  EXPECT_TRUE(shows<ApprovalsView>());
  select(WorkspaceSection::connectors);
  EXPECT_TRUE(shows<ConnectorsView>());
  select(WorkspaceSection::browser);
  EXPECT_TRUE(shows<BrowserWorkspaceView>());
  select(WorkspaceSection::security);
  EXPECT_TRUE(shows<SecurityView>());
  select(WorkspaceSection::pricing);
  EXPECT_TRUE(shows<PricingView>());
}

TEST_F(RouterTest, EveryScreenStandsTwentyEightPointsFromEachEdge) {
  for (const auto section : allCases<WorkspaceSection>()) {
    select(section);
    auto& ground = *router_.get_child();
    const auto bounds = boundsIn(ground, screen());
    EXPECT_EQ(bounds.get_x(), 28) << title(section);
    EXPECT_EQ(bounds.get_y(), 28) << title(section);
    EXPECT_EQ(bounds.get_x() + bounds.get_width(), router_.get_width() - 28) << title(section);
    EXPECT_GE(router_.get_vadjustment()->get_upper(), bounds.get_height() + 2 * 28) << title(section);
  }
}

TEST_F(RouterTest, EveryScreenHasItsNaturalHeightInAHighWindowToo) {
  constexpr int margins = 2 * 28;
  window_.resize(1000, 1150);
  for (const auto section : allCases<WorkspaceSection>()) {
    select(section);
    EXPECT_EQ(screen().get_height(),
              heightRequest(screen(), screen().get_width() + margins).natural - margins)
        << title(section);
  }
}

TEST_F(RouterTest, EveryScreenFitsTheCentreOfTheSmallestWindow) {
  for (const auto section : allCases<WorkspaceSection>()) {
    select(section);
    EXPECT_LE(widthRequest(router_).minimum, 1180 - 272) << title(section);
  }
}

TEST_F(RouterTest, SelectingTheSectionOnScreenKeepsItsScreen) {
  auto* before = &screen();
  select(WorkspaceSection::overview);
  EXPECT_EQ(&screen(), before);
}

TEST_F(RouterTest, OtherChangesOfTheStoreKeepTheScreen) {
  auto* before = &screen();
  store_.approveFirstPending();
  drawFrame(router_);
  EXPECT_EQ(&screen(), before);
}

TEST_F(RouterTest, TheBrowserWorkspaceIsTheSameWhateverTheStoreHolds) {
  select(WorkspaceSection::browser);
  auto* before = &screen();
  const auto look = lookOf(screen());
  store_.approve(store_.approvals->front());
  store_.toggleConnector(store_.connectors->front());
  store_.requests = {};
  store_.agents = {};
  store_.activity = {};
  store_.searchText = "Gmail";
  drawFrame(router_);
  EXPECT_EQ(&screen(), before);
  EXPECT_EQ(lookOf(screen()), look);
  select(WorkspaceSection::overview);
  select(WorkspaceSection::browser);
  EXPECT_EQ(lookOf(screen()), look) << "built anew";
}

TEST_F(RouterTest, SwitchingSectionsDiscardsAHalfTypedDraft) {
  auto* field = all<Gtk::Entry>(screen()).front();
  const auto initial = field->get_text();
  field->set_text("Half a sen");
  select(WorkspaceSection::agents);
  select(WorkspaceSection::overview);
  EXPECT_EQ(all<Gtk::Entry>(screen()).front()->get_text(), initial);
}

TEST_F(RouterTest, CreatingARequestShowsTheRequests) {
  store_.createRequest();
  drawFrame(router_);
  EXPECT_TRUE(shows<RequestsView>());
}

TEST_F(RouterTest, NoScrollBarIsEverShown) {
  window_.resize(1000, 300);
  EXPECT_FALSE(router_.get_vscrollbar()->get_mapped());
  EXPECT_FALSE(router_.get_hscrollbar()->get_mapped());
}

TEST_F(RouterTest, AFadeAtAnEdgeShowsThatMoreLiesBeyondIt) {
  window_.resize(1000, 300);
  select(WorkspaceSection::approvals);
  const auto inACard = [&](int y) { return window_.pixel(boundsIn(row_, router_).get_x() + 28 + 9, y); };
  const auto scroll = router_.get_vadjustment();
  scroll->set_value(250);
  EXPECT_THAT(inACard(0), IsColor(QuorvelBrand::background));
  EXPECT_THAT(inACard(100), IsColor(QuorvelBrand::panel));
  EXPECT_THAT(inACard(299), IsColor(QuorvelBrand::background));
  scroll->set_value(scroll->get_upper() - scroll->get_page_size());
  EXPECT_THAT(inACard(299 - 28 - 9), IsColor(QuorvelBrand::panel)) << "nothing lies below the last card";
}

TEST_F(RouterTest, KeysScrollAllTheSame) {
  window_.resize(1000, 300);
  gboolean isHandled = FALSE;
  g_signal_emit_by_name(router_.gobj(), "scroll-child", GTK_SCROLL_PAGE_FORWARD, FALSE, &isHandled);
  EXPECT_TRUE(eventually([&] { return scrolled() > 100; }));
}

TEST_F(RouterTest, WhatTakesTheFocusScrollsIntoView) {
  window_.resize(1000, 300);
  auto* field = all<Gtk::Entry>(screen()).front();
  ASSERT_FALSE(isInView(*field));
  field->grab_focus();
  EXPECT_TRUE(eventually([&] { return isInView(*field); }));
}

TEST_F(RouterTest, AScreenStartsAtItsTop) {
  window_.resize(1000, 300);
  router_.get_vadjustment()->set_value(200);
  drawFrame(router_);
  ASSERT_EQ(scrolled(), 200);
  select(WorkspaceSection::agents);
  EXPECT_EQ(scrolled(), 0);
}

TEST_F(RouterTest, FocusInsideTheOldScreenGoesToTheNewOneAsAWholeAndTabToItsFirstControl) {
  buttonNamed(screen(), "Connectors")->grab_focus();
  click(*buttonNamed(screen(), "Connectors"));
  drawFrame(router_);
  EXPECT_EQ(focus(), &screen());
  EXPECT_EQ(scrolled(), 0);
  window_.child_focus(Gtk::DirectionType::TAB_FORWARD);
  EXPECT_EQ(focus(), all<Gtk::Switch>(screen()).front());
}

TEST_F(RouterTest, AScreenThatTookTheFocusAsAWholeIsNoStopOfTabAfterwards) {
  window_.resize(1000, 300);
  buttonNamed(screen(), "Connectors")->grab_focus();
  select(WorkspaceSection::connectors);
  EXPECT_EQ(focus(), &screen());
  EXPECT_EQ(scrolled(), 0);
  outside_.grab_focus();
  window_.child_focus(Gtk::DirectionType::TAB_FORWARD);
  EXPECT_EQ(focus(), all<Gtk::Switch>(screen()).front());
}

TEST_F(RouterTest, FocusOutsideTheScreenStaysThere) {
  outside_.grab_focus();
  select(WorkspaceSection::connectors);
  EXPECT_EQ(focus(), &outside_);
}

} // namespace
} // namespace quorvel
