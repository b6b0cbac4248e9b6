#include "console/ConnectorsView.h"

#include "brand/QuorvelBrand.h"
#include "brand/StatusPill.h"
#include "support/TestWindow.h"

namespace quorvel {
namespace {

using namespace quorvel::tests;
using ::testing::ElementsAre;
using ::testing::Not;

class ConnectorsTest : public ::testing::Test {
 protected:
  Gtk::Widget& grid() { return *view_.get_last_child(); }
  /// The card of the connector at this place of the store's list.
  Gtk::Widget& card(std::size_t index) {
    auto* child = grid().get_first_child();
    while (index-- > 0)
      child = child->get_next_sibling();
    return *child;
  }
  Gtk::Switch& switchOf(std::size_t index) { return *all<Gtk::Switch>(card(index)).front(); }
  StatusPill& pill(std::size_t index) { return *all<StatusPill>(card(index)).front(); }
  /// What a press of Space or Return does, up to the frame that shows the outcome.
  void flip(std::size_t index) {
    gtk_widget_activate(GTK_WIDGET(switchOf(index).gobj()));
    drawFrame(view_);
  }
  bool isSwitchShown(std::size_t index, bool isOn) {
    auto& toggle = switchOf(index);
    return eventually([&] { return toggle.get_active() == isOn && toggle.get_state() == isOn; });
  }

  static constexpr std::size_t gmail = 0, stripe = 4, browser = 9;

  WorkspaceStore store_;
  ConnectorsView view_{store_};
  TestWindow window_{view_, 852};
};

TEST_F(ConnectorsTest, ShowsTheHeaderAndEveryConnectorInTheStoresOrder) {
  EXPECT_THAT(texts(*view_.get_first_child()),
              ElementsAre("CONNECTORS", "Real context from working apps",
                          "Quorvel's helper agents can work from messages, files, calendars, stores, "
                          "payments, finance, ads, and browser context."));
  for (std::size_t i = 0; i < store_.connectors->size(); ++i) {
    const auto& item = store_.connectors->at(i);
    EXPECT_THAT(texts(card(i)),
                ElementsAre(item.isConnected ? "Connected" : "Off", item.name, item.category, item.lastSync));
  }
  EXPECT_EQ(card(9).get_next_sibling(), nullptr);
}

TEST_F(ConnectorsTest, AConnectedConnectorHasAGreenPillAndItsSwitchOn) {
  EXPECT_THAT(texts(pill(gmail)), ElementsAre("Connected"));
  EXPECT_TRUE(pill(gmail).has_css_class("tone-green"));
  EXPECT_TRUE(isSwitchShown(gmail, true));
}

TEST_F(ConnectorsTest, AnUnconnectedConnectorHasASlatePillAndItsSwitchOff) {
  EXPECT_THAT(texts(pill(stripe)), ElementsAre("Off"));
  EXPECT_TRUE(pill(stripe).has_css_class("tone-slate"));
  EXPECT_TRUE(isSwitchShown(stripe, false));
}

TEST_F(ConnectorsTest, TurningASwitchOnConnectsExactlyOnceAndReadsJustNow) {
  int announcements = 0;
  store_.objectWillChange().connect([&] { ++announcements; });
  flip(stripe);
  EXPECT_EQ(announcements, 2) << "the flip and its sync text, once";
  EXPECT_TRUE(store_.connectors->at(stripe).isConnected);
  EXPECT_THAT(texts(card(stripe)), ElementsAre("Connected", "Stripe", "Payments", "Just now"));
  EXPECT_TRUE(isSwitchShown(stripe, true));
  flip(stripe);
  EXPECT_THAT(texts(card(stripe)), ElementsAre("Off", "Stripe", "Payments", "Disconnected"));
  EXPECT_TRUE(isSwitchShown(stripe, false));
}

TEST_F(ConnectorsTest, TheSeedTextsOfTheLastSyncStayUntilTheFirstFlip) {
  flip(gmail);
  EXPECT_EQ(texts(card(stripe)).back(), "Not connected");
  EXPECT_EQ(texts(card(browser)).back(), "Live");
  EXPECT_EQ(texts(card(gmail)).back(), "Disconnected");
}

TEST_F(ConnectorsTest, AnEmptyListShowsOnlyTheHeader) {
  store_.connectors = RecordList<ConnectorItem>{};
  drawFrame(view_);
  EXPECT_EQ(grid().get_first_child(), nullptr);
  EXPECT_EQ(texts(view_).size(), 3U);
}

TEST_F(ConnectorsTest, AFlipRedrawsTheCardInPlaceAndKeepsTheFocus) {
  auto* before = &switchOf(stripe);
  before->grab_focus();
  flip(stripe);
  EXPECT_EQ(&switchOf(stripe), before);
  EXPECT_EQ(window_.get_focus(), before);
}

TEST_F(ConnectorsTest, AChangeFromElsewhereMovesTheSwitchAndFlipsNothing) {
  store_.toggleConnector(store_.connectors->at(gmail));
  drawFrame(view_);
  EXPECT_TRUE(isSwitchShown(gmail, false));
  EXPECT_FALSE(store_.connectors->at(gmail).isConnected);
}

TEST_F(ConnectorsTest, WhereTheStoreEndsUpAsItWasTheSwitchDoesNotMove) {
  int moves = 0;
  switchOf(gmail).property_active().signal_changed().connect([&] { ++moves; });
  gtk_widget_activate(GTK_WIDGET(switchOf(gmail).gobj()));
  store_.toggleConnector(store_.connectors->at(gmail));
  drawFrame(view_);
  EXPECT_TRUE(isSwitchShown(gmail, true));
  EXPECT_EQ(texts(card(gmail)).back(), "Just now");
  EXPECT_EQ(moves, 0);
}

TEST_F(ConnectorsTest, EverySwitchIsEnabledAndNamedAfterItsConnector) {
  for (std::size_t i = 0; i < store_.connectors->size(); ++i) {
    EXPECT_TRUE(switchOf(i).is_sensitive());
    EXPECT_TRUE(hasAccessibleName(switchOf(i), store_.connectors->at(i).name)) << i;
  }
}

TEST_F(ConnectorsTest, TheIconTileIsASoftSquareThatKeepsTheConnectorsToneInBothStates) {
  auto* icon = all<Gtk::Image>(card(stripe)).front();
  auto* tile = icon->get_parent();
  EXPECT_EQ(tile->get_width(), 38);
  EXPECT_EQ(tile->get_height(), 38);
  EXPECT_EQ(icon->get_icon_name(), "creditcard.fill.600-symbolic");
  const auto bounds = boundsIn(view_, *tile);
  const auto corner = [&] { return window_.pixel(bounds.get_x() + 5, bounds.get_y() + 5); };
  const auto fill = corner();
  EXPECT_THAT(fill, Not(IsColor(QuorvelBrand::panel)));
  EXPECT_THAT(inkOf(*icon), IsColor(QuorvelBrand::blue));
  flip(stripe);
  EXPECT_THAT(corner(), IsColor(fill));
  EXPECT_THAT(inkOf(*icon), IsColor(QuorvelBrand::blue));
}

TEST_F(ConnectorsTest, ColumnsAreAtLeast230PointsWide) {
  const auto columns = [&] {
    int count = 0;
    for (std::size_t i = 0; i < store_.connectors->size(); ++i)
      count += boundsIn(grid(), card(i)).get_y() == 0;
    return count;
  };
  window_.resize(473);
  EXPECT_EQ(columns(), 1);
  window_.resize(474);
  EXPECT_EQ(columns(), 2);
  EXPECT_EQ(card(0).get_width(), 230);
}

TEST_F(ConnectorsTest, TheSearchTextFiltersNothing) {
  const auto before = texts(view_);
  store_.searchText = "Gmail";
  drawFrame(view_);
  EXPECT_EQ(texts(view_), before);
}

} // namespace
} // namespace quorvel
