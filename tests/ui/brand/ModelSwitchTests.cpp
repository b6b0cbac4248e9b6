#include "brand/ModelSwitch.h"
#include "layout/stacks.h"
#include "support/TestWindow.h"

#include <gmock/gmock.h>

namespace quorvel {
namespace {

using namespace quorvel::tests;
using ::testing::ElementsAre;

/// A switch on screen, and a model that takes what is written unless it is stubborn.
struct ModelSwitchTest : ::testing::Test {
  ModelSwitchTest() {
    toggle.show(true);
    EXPECT_TRUE(arrivesAt(true));
  }
  void act() { gtk_widget_activate(GTK_WIDGET(toggle.gobj())); }
  bool arrivesAt(bool isOn) {
    return eventually([&] { return toggle.get_active() == isOn && toggle.get_state() == isOn; });
  }

  std::vector<bool> written;
  bool isStubborn = false;
  ModelSwitch& toggle = *Gtk::make_managed<ModelSwitch>([this](bool isOn) {
    written.push_back(isOn);
    if (!isStubborn)
      toggle.show(isOn);
  });
  TestWindow window{*hstack(0, {&toggle, hspacer()}), 200};
};

TEST_F(ModelSwitchTest, ShowingAValueWritesNothing) {
  toggle.show(false);
  EXPECT_TRUE(arrivesAt(false));
  EXPECT_TRUE(written.empty());
}

TEST_F(ModelSwitchTest, BeforeItIsOnScreenItStandsAtItsValueAtOnce) {
  ModelSwitch fresh([](bool) {});
  fresh.show(true);
  EXPECT_TRUE(fresh.get_active());
  EXPECT_TRUE(fresh.get_state());
}

TEST_F(ModelSwitchTest, AnActionWritesThePositionAskedForOnceAndAtOnce) {
  act();
  EXPECT_THAT(written, ElementsAre(false));
  EXPECT_TRUE(arrivesAt(false));
  EXPECT_THAT(written, ElementsAre(false)) << "arriving is no further action";
}

TEST_F(ModelSwitchTest, ActionsThatFollowEachOtherFasterThanTheSwitchMovesAllCount) {
  act();
  act();
  act();
  EXPECT_THAT(written, ElementsAre(false, true, false));
  EXPECT_TRUE(arrivesAt(false));
}

TEST_F(ModelSwitchTest, WhereTheModelKeepsItsValueNothingMoves) {
  isStubborn = true;
  int moves = 0;
  toggle.property_active().signal_changed().connect([&] { ++moves; });
  toggle.property_state().signal_changed().connect([&] { ++moves; });
  act();
  drawFrame(toggle);
  EXPECT_THAT(written, ElementsAre(false));
  EXPECT_TRUE(toggle.get_active());
  EXPECT_EQ(moves, 0);
}

TEST_F(ModelSwitchTest, AValueThatChangesBackOnTheWayBringsTheSwitchBack) {
  toggle.show(false);
  toggle.show(true);
  EXPECT_TRUE(arrivesAt(true));
  drawFrame(toggle);
  EXPECT_TRUE(toggle.get_active());
}

} // namespace
} // namespace quorvel
