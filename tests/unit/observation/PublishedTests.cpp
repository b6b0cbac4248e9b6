#include "observation/Published.h"
#include "observation/observe.h"

#include <functional>
#include <gmock/gmock.h>
#include <vector>

namespace quorvel {
namespace {

using ::testing::ElementsAre;

struct Model : ObservableObject {
  Published<int> count{*this, 1};
  Published<std::vector<int>> list{*this, {}};
};

/// Stands in for a widget: collects the tick callbacks that a frame would run.
struct View : sigc::trackable {
  explicit View(Model& model) : model_(model) { observe(model, *this, &View::refresh); }

  unsigned add_tick_callback(std::function<bool(int)> callback) {
    ticks.push_back(std::move(callback));
    return 0;
  }
  void drawFrame() {
    for (auto& tick : std::exchange(ticks, {}))
      EXPECT_FALSE(tick(0)) << "a refresh runs once per frame at most";
  }
  void refresh() { shown.push_back(model_.count); }

  std::vector<std::function<bool(int)>> ticks;
  std::vector<int> shown;

 private:
  Model& model_;
};

TEST(Published, AnnouncesBeforeItAssigns) {
  Model model;
  int seen = 0;
  model.objectWillChange().connect([&] { seen = model.count; });
  model.count = 7;
  EXPECT_EQ(seen, 1);
  EXPECT_EQ(model.count, 7);
}

TEST(Published, AnnouncesAnAssignmentThatChangesNothing) {
  Model model;
  int announcements = 0;
  model.objectWillChange().connect([&] { ++announcements; });
  model.count = 1;
  EXPECT_EQ(announcements, 1);
}

TEST(Published, AnnouncesAnEditInPlaceOnce) {
  Model model;
  int announcements = 0;
  model.objectWillChange().connect([&] { ++announcements; });
  model.list.update([](auto& list) { list = {1, 2, 3}; });
  EXPECT_EQ(announcements, 1);
  EXPECT_THAT(*model.list, ElementsAre(1, 2, 3));
}

TEST(Observe, ShowsTheModelAtOnce) {
  Model model;
  View view(model);
  EXPECT_THAT(view.shown, ElementsAre(1));
}

TEST(Observe, ManyAnnouncementsLeadToOneRefreshInTheNextFrame) {
  Model model;
  View view(model);
  model.count = 2;
  model.count = 3;
  EXPECT_THAT(view.shown, ElementsAre(1)) << "nothing is shown before the frame";
  view.drawFrame();
  EXPECT_THAT(view.shown, ElementsAre(1, 3));
}

TEST(Observe, AChangeAfterAFrameIsShownInTheFollowingOne) {
  Model model;
  View view(model);
  model.count = 2;
  view.drawFrame();
  model.count = 3;
  view.drawFrame();
  EXPECT_THAT(view.shown, ElementsAre(1, 2, 3));
}

TEST(Observe, TheTieEndsWithTheView) {
  Model model;
  { View view(model); }
  model.count = 2;
  EXPECT_TRUE(model.objectWillChange().empty());
}

} // namespace
} // namespace quorvel
