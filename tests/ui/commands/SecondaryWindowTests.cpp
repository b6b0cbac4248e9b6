#include "commands/SecondaryWindow.h"

#include "commands/AboutView.h"
#include "commands/ShortcutsView.h"
#include "preferences/Preferences.h"
#include "settings/SettingsView.h"
#include "support/TemporaryFolder.h"
#include "support/TestWindow.h"
#include "support/TextChecks.h"
#include "support/TextScale.h"

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

/// Looks at what a window shows in every size of text.
void expectNothingIsCut(const std::function<std::unique_ptr<SecondaryWindow>()>& make) {
  for (const double factor : textFactors) {
    SCOPED_TRACE(factor);
    const TextScale large(factor);
    const auto window = make();
    window->present();
    ASSERT_TRUE(eventually([&] { return window->get_mapped(); }));
    drawFrame(*window);
    EXPECT_THAT(textFaults(*window->get_child()), ::testing::IsEmpty());
  }
}

TEST(SecondaryWindowTest, InLargeTextNothingOfTheShortcutsIsCut) {
  const CommandGroup commands{
      .title = "Quorvel",
      .sections = {
          {{.action = "n", .title = "_Open Agent Workspace", .key = "<Control>n", .perform = {}},
           {.action = "o", .title = "Open in _Browser", .key = "<Control><Shift>o", .perform = {}}}}};
  expectNothingIsCut([&] { return makeShortcutsWindow({{"Quorvel", commands}}); });
}

TEST(SecondaryWindowTest, InLargeTextNothingOfWhatAProgramTellsAboutItselfIsCut) {
  const About about{.name = "Quorvel",
                    .version = "1.2.3",
                    .summary = "Desktop agent client",
                    .icon = "com.quorvel.Desktop",
                    .details = {"The service: https://app.quorvel.example",
                                "Data: /home/somebody-with-a-long-name/.local/share/quorvel/website-data"},
                    .showWebsite = [] {}};
  expectNothingIsCut([&] { return makeAboutWindow(about); });
}

TEST(SecondaryWindowTest, ItHasATitleBarOnTheProgramsOwnGround) {
  const TemporaryFolder folder;
  Preferences preferences(folder.path / "preferences.ini");
  SecondaryWindow window("Settings", *Gtk::make_managed<SettingsView>(preferences));
  window.present();
  ASSERT_TRUE(eventually([&] { return window.get_mapped(); }));
  drawFrame(window);
  auto* bar = window.get_titlebar();
  ASSERT_NE(bar, nullptr);
  EXPECT_THAT(texts(*bar), ::testing::ElementsAre("Settings"));
  const auto picture = drawingOf(window);
  const auto place = boundsInDrawing(window, *bar);
  const int column = place.get_x() + 40; // nothing of the bar but its ground is there
  for (int y = place.get_y(); y < place.get_y() + place.get_height() - 1; ++y)
    EXPECT_LE(picture->get_data()[y * picture->get_stride() + 4 * column], 4) << "grey in line " << y;
  EXPECT_EQ(window.get_focus(), all<Gtk::Switch>(window).front()) << "and not a button in the bar";
}

TEST(SecondaryWindowTest, WhatAProgramTellsAboutItselfIsNotSelectedBeforeAnybodySelectsIt) {
  const auto window =
      makeAboutWindow({.name = "Quorvel", .version = "1.2.3", .summary = "", .icon = "", .details = {}});
  window->present();
  ASSERT_TRUE(eventually([&] { return window->get_mapped(); }));
  drawFrame(*window);
  for (auto* label : all<Gtk::Label>(*window)) {
    int begin, end;
    EXPECT_FALSE(label->get_selection_bounds(begin, end)) << label->get_text();
  }
  EXPECT_EQ(window->get_focus(), buttonNamed(*window, "Copy"));
}

TEST(SecondaryWindowTest, WhatAProgramTellsAboutItselfIsCopiedAsOneText) {
  const About about{.name = "Quorvel",
                    .version = "1.2.3",
                    .summary = "",
                    .icon = "",
                    .details = {"WebKitGTK 2.50", "Cache: /home/somebody/.cache"}};
  const auto window = makeAboutWindow(about);
  window->present();
  ASSERT_TRUE(eventually([&] { return window->get_mapped(); }));
  click(*buttonNamed(*window, "Copy"));
  Glib::ustring copied;
  const auto clipboard = window->get_clipboard();
  clipboard->read_text_async([&](const auto& result) { copied = clipboard->read_text_finish(result); });
  EXPECT_TRUE(eventually([&] { return !copied.empty(); }));
  EXPECT_EQ(copied.raw(), about.text());
  EXPECT_THAT(about.text(), ::testing::StartsWith("Quorvel 1.2.3\nWebKitGTK 2.50\nCache: /home/somebody"));
}

} // namespace
} // namespace quorvel
