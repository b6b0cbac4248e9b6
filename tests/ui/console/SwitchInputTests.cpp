#include "console/ConnectorsView.h"

#include "support/RealInput.h"
#include "support/TestWindow.h"

namespace quorvel {
namespace {

using namespace quorvel::tests;

/// The switch of one connector under the real pointer and keyboard.
class SwitchInputTest : public ::testing::Test {
 protected:
  static constexpr std::size_t stripe = 4;

  SwitchInputTest() {
    store_.objectWillChange().connect([this] { ++announcements_; });
  }
  bool isConnected() { return store_.connectors->at(stripe).isConnected; }
  /// How often the store was flipped once everything under way has settled.
  int flips() {
    drawFrame(view_);
    return announcements_ / 2;
  }
  bool becomes(bool isOn) {
    return eventually([&] { return isConnected() == isOn && switch_.get_state() == isOn; });
  }

  int announcements_ = 0;
  WorkspaceStore store_;
  ConnectorsView view_{store_};
  TestWindow window_{view_, 852};
  Gtk::Switch& switch_ = *all<Gtk::Switch>(view_)[stripe];
};

TEST_F(SwitchInputTest, AClickFlipsTheConnectorOnce) {
  clickOn(switch_);
  ASSERT_TRUE(becomes(true));
  EXPECT_EQ(flips(), 1);
  clickOn(switch_);
  ASSERT_TRUE(becomes(false));
  EXPECT_EQ(flips(), 2);
}

TEST_F(SwitchInputTest, TwoClicksInQuickSuccessionFlipTheConnectorTwice) {
  clickOn(switch_);
  clickOn(switch_);
  ASSERT_TRUE(eventually([&] { return announcements_ == 4; }));
  EXPECT_TRUE(becomes(false));
  EXPECT_EQ(flips(), 2);
}

TEST_F(SwitchInputTest, SpaceAndReturnFlipTheConnectorOnceEachAndTheFocusStays) {
  clickOn(switch_);
  ASSERT_TRUE(becomes(true));
  switch_.grab_focus();
  strikeKey("space");
  ASSERT_TRUE(becomes(false));
  EXPECT_EQ(flips(), 2);
  strikeKey("Return");
  ASSERT_TRUE(becomes(true));
  EXPECT_EQ(flips(), 3);
  EXPECT_EQ(window_.get_focus(), &switch_);
}

TEST_F(SwitchInputTest, AHeldKeyFlipsTheConnectorOnce) {
  clickOn(switch_);
  ASSERT_TRUE(becomes(true));
  switch_.grab_focus();
  holdKey("space", window_);
  ASSERT_TRUE(becomes(false));
  EXPECT_EQ(flips(), 2);
  strikeKey("space");
  ASSERT_TRUE(becomes(true)) << "the next strike counts again";
}

TEST_F(SwitchInputTest, TabGoesFromSwitchToSwitchInTheOrderOfTheCards) {
  const auto switches = all<Gtk::Switch>(view_);
  clickOn(switch_);
  switches.front()->grab_focus();
  for (std::size_t i = 1; i < switches.size(); ++i) {
    strikeKey("Tab");
    EXPECT_TRUE(eventually([&] { return window_.get_focus() == switches[i]; })) << i;
  }
  drawFrame(view_);
  switches.front()->grab_focus();
  strikeKey("Tab");
  EXPECT_TRUE(eventually([&] { return window_.get_focus() == switches[1]; })) << "and again";
}

} // namespace
} // namespace quorvel
