#include "observation/Published.h"
#include "observation/observe.h"

#include <gmock/gmock.h>
#include <memory>
#include <vector>

namespace quorvel {
namespace {

using ::testing::ElementsAre;

struct Model : ObservableObject {
  Published<int> count{*this, 1};
  Published<std::vector<int>> list{*this, {}};
};

struct View : sigc::trackable {
  explicit View(Model& model) : model_(model) { observe(model, *this, &View::refresh); }
  void refresh() { shown.push_back(model_.count); }

  std::vector<int> shown;

 private:
  Model& model_;
};

/// What happens before the next frame is drawn.
void runMainLoop() {
  while (Glib::MainContext::get_default()->iteration(false))
    ;
}

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

TEST(Observe, ManyAnnouncementsLeadToOneRefreshBeforeTheNextFrame) {
  Model model;
  View view(model);
  model.count = 2;
  model.count = 3;
  EXPECT_THAT(view.shown, ElementsAre(1)) << "nothing is shown in the middle of the change";
  runMainLoop();
  EXPECT_THAT(view.shown, ElementsAre(1, 3));
}

TEST(Observe, AChangeAfterARefreshIsShownByTheNext) {
  Model model;
  View view(model);
  model.count = 2;
  runMainLoop();
  model.count = 3;
  runMainLoop();
  EXPECT_THAT(view.shown, ElementsAre(1, 2, 3));
}

TEST(Observe, TheTieEndsWithTheView) {
  Model model;
  {
    View view(model);
  }
  model.count = 2;
  EXPECT_TRUE(model.objectWillChange().empty());
}

TEST(Observe, AViewThatGoesBeforeItsRefreshIsNotRefreshed) {
  Model model;
  auto view = std::make_unique<View>(model);
  model.count = 2;
  view.reset();
  runMainLoop();
}

TEST(Observe, ARefreshRunsAheadOfLayoutAndDrawing) {
  Model model;
  View view(model);
  std::vector<int> shownWhenLaidOut;
  constexpr int layoutPriority = Glib::PRIORITY_HIGH_IDLE + 10;
  Glib::signal_idle().connect_once([&] { shownWhenLaidOut = view.shown; }, layoutPriority);
  model.count = 2;
  runMainLoop();
  EXPECT_THAT(shownWhenLaidOut, ElementsAre(1, 2));
}

} // namespace
} // namespace quorvel
