#include "commands/AboutView.h"
#include "commands/PrimaryMenu.h"
#include "commands/ShortcutsView.h"
#include "settings/SettingsView.h"
#include "support/Contrast.h"
#include "support/ThemeChoice.h"
#include "ui/programs/client/MainWindowFixture.h"

namespace quorvel {
namespace {

using ::testing::IsEmpty;
using tests::illegibleParts;

class ClientThemeTest : public MainWindowFixture, public ::testing::WithParamInterface<tests::ChosenTheme> {
 protected:
  const tests::ThemeChoice choice_{GetParam().first, GetParam().second};

  void expectLegible(Gtk::Window& beside) {
    beside.present();
    ASSERT_TRUE(tests::eventually([&] { return beside.get_mapped(); }));
    EXPECT_THAT(illegibleParts(beside), IsEmpty()) << beside.get_title();
    beside.close();
  }
};

TEST_P(ClientThemeTest, EverythingCanBeRead) {
  EXPECT_THAT(illegibleParts(*window), IsEmpty());
  auto* menu = tests::all<PrimaryMenu>(*window).front();
  menu->popup();
  ASSERT_TRUE(tests::eventually([&] { return menu->get_popover()->get_mapped(); }));
  EXPECT_THAT(illegibleParts(*menu->get_popover()), IsEmpty());
  menu->popdown();

  Preferences preferences(Glib::build_filename(Glib::get_user_config_dir(), "preferences.ini"));
  SecondaryWindow settings("Settings", *Gtk::make_managed<SettingsView>(preferences));
  expectLegible(settings);
  expectLegible(*makeShortcutsWindow({{"Quorvel", commands->client}, {"Program", commands->program}}));
  expectLegible(*makeAboutWindow({.name = "Quorvel",
                                  .version = "1",
                                  .summary = "Client",
                                  .icon = "",
                                  .details = {},
                                  .showWebsite = {}}));
}

INSTANTIATE_TEST_SUITE_P(Theme, ClientThemeTest, ::testing::ValuesIn(tests::themesToChoose()),
                         tests::nameOfChoice);

} // namespace
} // namespace quorvel
