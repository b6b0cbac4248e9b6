#include "ModelSwitch.h"
#include "UiStage.h"
#include "stacks.h"

#include <gmock/gmock.h>

namespace quorvel {
namespace {

using namespace quorvel::testing;
using ::testing::ElementsAre;

/// A switch on screen and what it was asked to write.
struct ModelSwitchTest : ::testing::Test {
  ModelSwitchTest() { toggle.show(true); }
  void act() {
    const auto before = written.size();
    gtk_widget_activate(GTK_WIDGET(toggle.gobj()));
    ASSERT_TRUE(waitUntil([&] { return written.size() > before; }));
  }

  std::vector<bool> written;
  std::function<void()> answer = [] {};
  ModelSwitch& toggle = *Gtk::make_managed<ModelSwitch>([this](bool isOn) {
    written.push_back(isOn);
    answer();
  });
  UiStage stage{*hstack(0, {&toggle, hspacer()}), 200};
};

TEST_F(ModelSwitchTest, ShowingAValueWritesNothing) {
  toggle.show(false);
  EXPECT_FALSE(toggle.get_active());
  EXPECT_FALSE(toggle.get_state());
  toggle.show(true);
  EXPECT_TRUE(toggle.get_active());
  EXPECT_TRUE(written.empty());
}

TEST_F(ModelSwitchTest, AnActionWritesThePositionAskedForOnce) {
  answer = [this] { toggle.show(false); };
  act();
  drawFrame(toggle);
  EXPECT_THAT(written, ElementsAre(false));
  EXPECT_FALSE(toggle.get_active());
  EXPECT_FALSE(toggle.get_state());
}

TEST_F(ModelSwitchTest, TheTrackKeepsTheModelsValueUntilTheModelAnswers) {
  act();
  EXPECT_TRUE(toggle.get_state()) << "it was not shown another value";
}

TEST_F(ModelSwitchTest, WhereTheModelKeepsItsValueTheSwitchReturnsToIt) {
  act();
  ASSERT_FALSE(toggle.get_active());
  EXPECT_TRUE(waitUntil([&] { return toggle.get_active(); }));
  EXPECT_THAT(written, ElementsAre(false)) << "returning is no action of the user";
}

TEST_F(ModelSwitchTest, ShowingThePresentValueDoesNotStopAnActionThatHasBegun) {
  gtk_widget_activate(GTK_WIDGET(toggle.gobj()));
  toggle.show(true);
  EXPECT_TRUE(waitUntil([&] { return !written.empty(); }));
}

} // namespace
} // namespace quorvel
