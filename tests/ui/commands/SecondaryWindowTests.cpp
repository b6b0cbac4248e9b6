#include "commands/SecondaryWindow.h"

#include "preferences/Preferences.h"
#include "settings/SettingsView.h"
#include "support/TemporaryFolder.h"
#include "support/TestWindow.h"

namespace quorvel {
namespace {

using namespace quorvel::tests;

TEST(SecondaryWindowTest, ItIsAsLargeAsItsContentAndCannotBeResized) {
  const TemporaryFolder folder;
  Preferences preferences(folder.path / "preferences.ini");
  auto* view = Gtk::make_managed<SettingsView>(preferences);
  SecondaryWindow window("Settings", *view);
  window.present();
  ASSERT_TRUE(eventually([&] { return window.get_mapped(); }));
  drawFrame(window);
  int minimum, natural, ignored;
  view->measure(Gtk::Orientation::VERTICAL, 520, minimum, natural, ignored, ignored);
  EXPECT_EQ(window.get_title(), "Settings");
  EXPECT_FALSE(window.get_resizable());
  EXPECT_EQ(view->get_width(), 520);
  EXPECT_EQ(view->get_height(), natural);
}

} // namespace
} // namespace quorvel
