#include "programs/console/ConsoleApplication.h"
#include "programs/console/ConsoleColumns.h"

#include "brand/QuorvelBrand.h"
#include "commands/PrimaryMenu.h"
#include "console/DetailView.h"
#include "console/InspectorPanel.h"
#include "console/SidebarView.h"
#include "layout/AdaptiveGrid.h"
#include "layout/LazyGrid.h"
#include "support/RightToLeft.h"
#include "support/TemporaryFolder.h"
#include "support/TestWindow.h"
#include "support/TextScale.h"

#include <gtkmm/icontheme.h>

namespace quorvel {
namespace {

using namespace quorvel::tests;
using ::testing::ElementsAre;

class ColumnsTest : public ::testing::Test {
 protected:
  template <class Column>
  Gdk::Rectangle bounds() {
    return boundsIn(columns_, *all<Column>(columns_).front());
  }
  /// The screen's first grid, of whichever kind.
  Container& grid() {
    for (auto* container : all<Container>(columns_))
      if (dynamic_cast<AdaptiveGrid*>(container) || dynamic_cast<LazyGrid*>(container))
        return *container;
    throw std::runtime_error("the screen has no grid");
  }
  /// How many cards of the screen's grid stand in its first row.
  std::size_t cardsInFirstRow() {
    const auto cards = visibleChildren(grid());
    return static_cast<std::size_t>(std::ranges::count_if(cards, [&](auto* card) {
      const auto first = boundsIn(columns_, *cards.front()), bounds = boundsIn(columns_, *card);
      return bounds.get_y() < first.get_y() + first.get_height();
    }));
  }
  /// What is on screen once a frame changes nothing any more: rows and fades come in a frame of their own.
  std::vector<unsigned char> settledPicture() {
    auto picture = window_.picture();
    EXPECT_TRUE(eventually([&] {
      const auto before = std::exchange(picture, {});
      drawFrame(columns_);
      picture = window_.picture();
      return picture == before;
    }));
    return picture;
  }
  bool showsInspector() { return all<InspectorPanel>(columns_).front()->get_mapped(); }

  TemporaryFolder folder_;
  WorkspaceStore store_;
  Preferences preferences_{folder_.path / "preferences.ini"};
  ConsoleColumns columns_{store_, preferences_};
  TestWindow window_{columns_, 1180, 760};
};

TEST_F(ColumnsTest, TheSmallestSizeIs1180By760) {
  const auto width = widthRequest(columns_);
  EXPECT_EQ(width.minimum, 1180);
  EXPECT_EQ(heightRequest(columns_, 1180).minimum, 760);
}

TEST_F(ColumnsTest, TheSmallestSizeIsTheSameForEverySection) {
  for (const auto section : allCases<WorkspaceSection>()) {
    store_.selectedSection = section;
    drawFrame(columns_);
    columns_.set_size_request(-1, -1);
    EXPECT_EQ(widthRequest(columns_).minimum, 1180) << title(section);
    EXPECT_EQ(heightRequest(columns_, 1180).minimum, 760) << title(section);
  }
}

TEST_F(ColumnsTest, AtTheSmallestWidthTheCentreTakesWhatTheSidebarLeaves) {
  EXPECT_EQ(bounds<SidebarView>().get_width(), 272);
  EXPECT_EQ(bounds<SidebarView>().get_height(), 760);
  EXPECT_EQ(bounds<DetailView>().get_x(), 272);
  EXPECT_EQ(bounds<DetailView>().get_width(), 1180 - 272);
  EXPECT_FALSE(showsInspector());
}

TEST_F(ColumnsTest, OnePointBelow1500TheInspectorIsHidden) {
  window_.resize(1499, 760);
  EXPECT_FALSE(showsInspector());
  EXPECT_EQ(bounds<DetailView>().get_width(), 1499 - 272);
}

TEST_F(ColumnsTest, From1500TheInspectorIs320Wide) {
  window_.resize(1500, 760);
  EXPECT_TRUE(showsInspector());
  EXPECT_EQ(bounds<InspectorPanel>().get_x(), 1500 - 320);
  EXPECT_EQ(bounds<InspectorPanel>().get_width(), 320);
  EXPECT_EQ(bounds<DetailView>().get_width(), 1500 - 272 - 320);
}

TEST_F(ColumnsTest, ThePreferenceToShowTheInspectorChangesNothing) {
  for (const int width : {1499, 1500}) {
    window_.resize(width, 760);
    const auto before = settledPicture();
    preferences_.set(PreferenceKey::showInspector, false);
    drawFrame(columns_);
    EXPECT_EQ(showsInspector(), width == 1500);
    EXPECT_TRUE(settledPicture() == before);
    preferences_.set(PreferenceKey::showInspector, true);
  }
}

TEST_F(ColumnsTest, OnADesktopThatIsReadFromTheRightTheSidebarIsThere) {
  const RightToLeft desktop;
  window_.resize(1600, 760);
  EXPECT_EQ(bounds<SidebarView>().get_x(), 1600 - 272);
  EXPECT_EQ(bounds<DetailView>().get_x(), 320);
  EXPECT_EQ(bounds<InspectorPanel>().get_x(), 0);
  const auto light = [&](int x) {
    const auto color = window_.pixel(x, 2);
    return color.red + color.green + color.blue;
  };
  EXPECT_LT(light(1600 - 272 - 3), light(320 + 3)) << "the gradient too grows lighter away from the sidebar";
}

TEST_F(ColumnsTest, WhatAWiderWindowHasMoreGoesToTheCentre) {
  window_.resize(1600, 1000);
  EXPECT_EQ(bounds<SidebarView>().get_width(), 272);
  EXPECT_EQ(bounds<DetailView>().get_width(), 1600 - 272 - 320);
  EXPECT_EQ(bounds<InspectorPanel>().get_width(), 320);
  EXPECT_EQ(bounds<InspectorPanel>().get_height(), 1000);
}

TEST_F(ColumnsTest, TheColumnsKeepTheirWidthsInLargeText) {
  const TextScale scale(1.5);
  window_.resize(1600, 1000);
  EXPECT_EQ(bounds<SidebarView>().get_width(), 272);
  EXPECT_EQ(bounds<InspectorPanel>().get_width(), 320);
  EXPECT_LE(widthRequest(*all<SidebarView>(columns_).front()).minimum, 272);
  EXPECT_LE(widthRequest(*all<InspectorPanel>(columns_).front()).minimum, 320);
}

TEST_F(ColumnsTest, AWiderWindowLosesNoColumnOfCardsExceptWhereTheInspectorAppears) {
  for (const auto section : {WorkspaceSection::overview, WorkspaceSection::pricing}) {
    store_.selectedSection = section;
    std::size_t before = 0;
    for (int width = 1180; width <= 1780; width += 10) {
      window_.resize(width, 760);
      const auto now = cardsInFirstRow();
      if (width != 1500) {
        EXPECT_GE(now, before) << title(section) << " at " << width;
      }
      before = now;
    }
    EXPECT_EQ(before, 4U) << title(section);
  }
}

TEST_F(ColumnsTest, FourPlansStandSideBySideFromTheWidthAtWhichTheyFit) {
  constexpr int needed = 272 + 28 + 4 * 230 + 3 * 14 + 28;
  store_.selectedSection = WorkspaceSection::pricing;
  for (const auto& [width, cards] :
       {std::pair{needed - 1, 3U}, {needed, 4U}, {needed + 319, 3U}, {needed + 320, 4U}}) {
    window_.resize(width, 760);
    EXPECT_EQ(cardsInFirstRow(), cards) << width;
  }
}

TEST_F(ColumnsTest, TheInspectorFollowsTheStoreWhileItIsHidden) {
  store_.selectedSection = WorkspaceSection::pricing;
  drawFrame(columns_);
  window_.resize(1500, 760);
  EXPECT_NE(labelled(*all<InspectorPanel>(columns_).front(), "Subscription fit"), nullptr);
}

TEST_F(ColumnsTest, TheGradientShowsBehindTheCentreFromCornerToCorner) {
  store_.selectedSection = WorkspaceSection::pricing;
  window_.resize(1180, 1800); // nothing lies below, so nothing fades
  drawFrame(columns_);
  const auto upper = window_.pixel(280, 5);
  const auto lower = window_.pixel(1175, 1795);
  EXPECT_THAT(lower, IsColor(QuorvelBrand::windowGradient()[2]));
  EXPECT_THAT(upper, ::testing::Not(IsColor(lower)));
}

TEST_F(ColumnsTest, AllColumnsFollowOneRequest) {
  window_.resize(1600, 1000);
  click(*buttonNamed(columns_, "+ New chat"));
  drawFrame(columns_);
  EXPECT_TRUE(isAccessiblySelected(*buttonNamed(*all<SidebarView>(columns_).front(), "Live Requests")));
  EXPECT_NE(labelled(*all<DetailView>(columns_).front(), "New workspace request"), nullptr);
  EXPECT_NE(labelled(*all<InspectorPanel>(columns_).front(), "Request created"), nullptr);
}

TEST_F(ColumnsTest, TabWalksFromTheSidebarThroughTheScreenAndOut) {
  buttonNamed(columns_, "+ New chat")->grab_focus();
  bool wasInCentre = false;
  auto* centre = all<DetailView>(columns_).front();
  int steps = 0;
  while (columns_.child_focus(Gtk::DirectionType::TAB_FORWARD) && ++steps < 200)
    wasInCentre = wasInCentre || window_.get_focus()->is_ancestor(*centre);
  EXPECT_TRUE(wasInCentre);
  EXPECT_LT(steps, 200) << "Tab leaves the columns at last";
}

/// The program from start to end; it neither asks nor answers others of its kind.
class ConsoleApplicationTest : public ::testing::Test {
 protected:
  /// Runs the program until it ends; does `visit` when its window is up.
  void run(const std::function<void()>& visit) {
    application_->signal_startup().connect([&] { Glib::signal_idle().connect_once(visit); });
    EXPECT_EQ(application_->run(), 0);
  }
  /// Looks at the program and has it end then.
  void visit(const std::function<void()>& look) {
    run([&] {
      look();
      application_->quit();
    });
  }
  Gtk::Window& window() { return *application_->get_windows().front(); }
  /// Another window beside this one, as soon as it has come; nothing if none does.
  Gtk::Window* other(const Gtk::Window& one) {
    const auto found = [&]() -> Gtk::Window* {
      for (auto* candidate : application_->get_windows())
        if (candidate != &one && candidate->get_mapped())
          return candidate;
      return nullptr;
    };
    EXPECT_TRUE(eventually([&] { return found() != nullptr; }));
    return found();
  }

  Glib::RefPtr<ConsoleApplication> application_ =
      ConsoleApplication::create(Gio::Application::Flags::NON_UNIQUE);
};

TEST_F(ConsoleApplicationTest, ShowsOneWindowOfItsName) {
  visit([&] {
    ASSERT_EQ(application_->get_windows().size(), 1U);
    EXPECT_EQ(window().get_title(), "Quorvel Console");
    EXPECT_EQ(window().get_icon_name(), "com.quorvel.Console");
    EXPECT_NE(dynamic_cast<ConsoleColumns*>(window().get_child()), nullptr);
  });
}

// Each change of the folders makes the toolkit read all symbols again, while the window waits.
TEST_F(ConsoleApplicationTest, ItsStartLeavesTheFoldersOfSymbolsAsTheyAre) {
  const auto symbols = Gtk::IconTheme::get_for_display(Gdk::Display::get_default());
  const auto before = symbols->get_resource_path();
  visit([&] { EXPECT_EQ(symbols->get_resource_path(), before); });
}

TEST_F(ConsoleApplicationTest, ASecondLaunchPresentsTheWindowThatIsThere) {
  visit([&] {
    auto* before = &window();
    Gtk::Window other;
    other.present();
    ASSERT_TRUE(eventually([&] { return other.is_active() && !before->is_active(); }));
    application_->activate();
    ASSERT_EQ(application_->get_windows().size(), 1U);
    EXPECT_EQ(&window(), before);
    EXPECT_TRUE(eventually([&] { return before->is_active(); }));
  });
}

TEST_F(ConsoleApplicationTest, ControlWithOneToEightSelectsTheSectionsAndNoOtherDigitAnything) {
  visit([&] {
    for (const auto section : allCases<WorkspaceSection>()) {
      const std::string keys = std::string("<Control>") + shortcut(section);
      const auto actions = application_->get_actions_for_accel(keys);
      ASSERT_EQ(actions.size(), 1U) << keys;
      window().activate_action(actions.front());
      EXPECT_EQ(*application_->store().selectedSection, section);
    }
    EXPECT_TRUE(application_->get_actions_for_accel("<Control>9").empty());
    EXPECT_TRUE(application_->get_actions_for_accel("<Control>0").empty());
  });
}

TEST_F(ConsoleApplicationTest, AtFirstTheFourFiguresFillOneRowBesideTheInspector) {
  visit([&] {
    ASSERT_TRUE(eventually([&] { return window().get_child()->get_width() > 0; }));
    EXPECT_TRUE(all<InspectorPanel>(window()).front()->get_mapped());
    auto* grid = all<AdaptiveGrid>(window()).front();
    const auto tiles = visibleChildren(*grid);
    ASSERT_EQ(tiles.size(), 4U);
    for (auto* tile : tiles)
      EXPECT_EQ(boundsIn(*grid, *tile).get_y(), 0);
    const auto last = boundsIn(*grid, *tiles.back());
    EXPECT_EQ(last.get_x() + last.get_width(), grid->get_width()) << "no column stays empty";
  });
}

TEST_F(ConsoleApplicationTest, TheWindowIsNoSmallerThanItsContentMayBe) {
  visit([&] {
    window().set_default_size(600, 400);
    drawFrame(window());
    EXPECT_GE(window().get_child()->get_width(), 1180);
    EXPECT_GE(window().get_child()->get_height(), 760);
  });
}

TEST_F(ConsoleApplicationTest, ClosingTheWindowEndsTheProgram) {
  run([&] { window().close(); });
}

TEST_F(ConsoleApplicationTest, ControlQEndsTheProgram) {
  run([&] { window().activate_action(application_->get_actions_for_accel("<Control>q").front()); });
}

TEST_F(ConsoleApplicationTest, ThePrimaryMenuHasTheProgramsOwnCommands) {
  visit([&] {
    const auto menus = all<PrimaryMenu>(window());
    ASSERT_EQ(menus.size(), 1U);
    EXPECT_TRUE(hasAccessibleName(*menus.front(), "Main menu"));
    menus.front()->popup();
    drawFrame(window());
    for (const auto* entry : {"Keyboard Shortcuts", "About", "Quit"})
      EXPECT_NE(labelled(*menus.front(), entry), nullptr) << entry;
  });
}

TEST_F(ConsoleApplicationTest, TheListOfShortcutsNamesEverySectionAndTheProgramsOwnKeys) {
  visit([&] {
    auto& main = window();
    main.activate_action(application_->get_actions_for_accel("<Control>question").front());
    auto* shortcuts = other(main);
    ASSERT_NE(shortcuts, nullptr);
    EXPECT_EQ(shortcuts->get_title(), "Keyboard Shortcuts");
    for (const auto section : allCases<WorkspaceSection>())
      EXPECT_NE(labelled(*shortcuts, std::string(title(section))), nullptr) << title(section);
    EXPECT_NE(labelled(*shortcuts, "Quit"), nullptr);
  });
}

TEST_F(ConsoleApplicationTest, AboutNamesTheProgramAndItsVersion) {
  visit([&] {
    auto& main = window();
    application_->activate_action("about");
    auto* about = other(main);
    ASSERT_NE(about, nullptr);
    EXPECT_EQ(about->get_title(), "About Quorvel Console");
    EXPECT_THAT(texts(*about),
                Contains(::testing::ContainsRegex("Quorvel Console [0-9]+\\.[0-9]+\\.[0-9]+\nGTK 4\\.")));
  });
}

TEST_F(ConsoleApplicationTest, ClosingTheWindowEndsTheProgramWithAnotherOneOpenBesideIt) {
  run([&] {
    auto& main = window();
    application_->activate_action("shortcuts");
    EXPECT_NE(other(main), nullptr);
    main.close();
  });
}

TEST_F(ConsoleApplicationTest, IsDarkWhateverTheDesktopSays) {
  Gtk::Settings::get_default()->property_gtk_application_prefer_dark_theme() = false;
  visit([] { EXPECT_TRUE(Gtk::Settings::get_default()->property_gtk_application_prefer_dark_theme()); });
}

TEST(ConsoleProgram, WithoutADisplaySaysSoInOneSentenceAndFails) {
  std::string output, errors;
  int status = 0;
  Glib::spawn_sync("", std::vector<std::string>{CONSOLE_PROGRAM}, std::vector<std::string>{"PATH=/usr/bin"},
                   Glib::SpawnFlags::DEFAULT, {}, &output, &errors, &status);
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 1);
  EXPECT_EQ(output, "");
  EXPECT_EQ(errors, "Quorvel Console needs a display to show its window on, and found none.\n");
}

} // namespace
} // namespace quorvel
