#include "commands/PrimaryMenu.h"
#include "programs/console/ConsoleApplication.h"
#include "support/Contrast.h"
#include "support/TestWindow.h"
#include "support/ThemeChoice.h"

namespace quorvel {
namespace {

using ::testing::IsEmpty;
using namespace quorvel::tests;

class ConsoleThemeTest : public ::testing::TestWithParam<ChosenTheme> {
  const ThemeChoice choice_{GetParam().first, GetParam().second};
};

TEST_P(ConsoleThemeTest, EverythingCanBeRead) {
  const auto application = ConsoleApplication::create(Gio::Application::Flags::NON_UNIQUE);
  const auto look = [&] {
    auto& window = *application->get_windows().front();
    EXPECT_TRUE(eventually([&] { return window.get_mapped(); }));
    for (const auto section : allCases<WorkspaceSection>()) {
      application->store().selectedSection = section;
      EXPECT_THAT(illegibleParts(window), IsEmpty()) << title(section);
    }
    auto* menu = all<PrimaryMenu>(window).front();
    menu->popup();
    EXPECT_TRUE(eventually([&] { return menu->get_popover()->get_mapped(); }));
    EXPECT_THAT(illegibleParts(*menu->get_popover()), IsEmpty());
    application->quit();
  };
  application->signal_startup().connect([&] { Glib::signal_idle().connect_once(look); });
  EXPECT_EQ(application->run(), 0);
}

INSTANTIATE_TEST_SUITE_P(Theme, ConsoleThemeTest, ::testing::ValuesIn(themesToChoose()), nameOfChoice);

} // namespace
} // namespace quorvel
