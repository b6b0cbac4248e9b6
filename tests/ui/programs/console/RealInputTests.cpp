#include "programs/console/ConsoleApplication.h"

#include "commands/PrimaryMenu.h"
#include "console/SidebarView.h"
#include "support/RealInput.h"
#include "support/TestWindow.h"

namespace quorvel {
namespace {

using namespace quorvel::tests;

Gtk::Button& row(Gtk::Widget& root, WorkspaceSection section) {
  return *buttonNamed(root, std::string(title(section)));
}

/// The sidebar under the real pointer and keyboard.
class SidebarInputTest : public ::testing::Test {
 protected:
  bool becomes(WorkspaceSection section) {
    return eventually([&] { return store_.selectedSection == section; });
  }
  bool focusReaches(const Gtk::Widget& widget) {
    return eventually([&] { return window_.get_focus() == &widget; });
  }

  WorkspaceStore store_;
  SidebarView sidebar_{store_};
  TestWindow window_{sidebar_, 272, 760};
};

TEST_F(SidebarInputTest, AClickAndSpaceAndReturnAllSelect) {
  clickOn(row(sidebar_, WorkspaceSection::approvals));
  ASSERT_TRUE(becomes(WorkspaceSection::approvals));
  strikeKey("Tab");
  ASSERT_TRUE(focusReaches(row(sidebar_, WorkspaceSection::connectors)));
  strikeKey("space");
  ASSERT_TRUE(becomes(WorkspaceSection::connectors));
  strikeKey("Tab");
  ASSERT_TRUE(focusReaches(row(sidebar_, WorkspaceSection::browser)));
  strikeKey("Return");
  EXPECT_TRUE(becomes(WorkspaceSection::browser));
}

TEST(ConsoleInput, ControlWithADigitSelectsItsSectionWhereverTheFocusIs) {
  const auto application = ConsoleApplication::create(Gio::Application::Flags::NON_UNIQUE);
  const auto becomes = [&](WorkspaceSection section) {
    return eventually([&] { return application->store().selectedSection == section; });
  };
  const auto useKeys = [&] {
    auto& window = *application->get_windows().front();
    EXPECT_TRUE(eventually([&] { return row(window, WorkspaceSection::pricing).get_width() > 0; }));
    clickOn(row(window, WorkspaceSection::pricing));
    EXPECT_TRUE(becomes(WorkspaceSection::pricing));
    for (const auto section : allCases<WorkspaceSection>()) {
      strikeKey(std::string("ctrl+") + shortcut(section));
      EXPECT_TRUE(becomes(section)) << title(section);
    }
    strikeKey("ctrl+q");
  };
  application->signal_startup().connect([&] { Glib::signal_idle().connect_once(useKeys); });
  EXPECT_EQ(application->run(), 0);
}

TEST(ConsoleInput, F10OpensTheMenu) {
  const auto application = ConsoleApplication::create(Gio::Application::Flags::NON_UNIQUE);
  const auto useKeys = [&] {
    auto& window = *application->get_windows().front();
    EXPECT_TRUE(eventually([&] { return row(window, WorkspaceSection::pricing).get_width() > 0; }));
    clickOn(row(window, WorkspaceSection::pricing));
    strikeKey("F10");
    EXPECT_TRUE(eventually([&] { return all<PrimaryMenu>(window).front()->get_popover()->get_mapped(); }));
    application->quit();
  };
  application->signal_startup().connect([&] { Glib::signal_idle().connect_once(useKeys); });
  EXPECT_EQ(application->run(), 0);
}

} // namespace
} // namespace quorvel
