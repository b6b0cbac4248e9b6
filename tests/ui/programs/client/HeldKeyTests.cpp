#include "client/ContentView.h"
#include "commands/PrimaryMenu.h"
#include "support/RealInput.h"
#include "ui/programs/client/MainWindowFixture.h"

namespace quorvel {
namespace {

using ::testing::SizeIs;
using tests::focusOn;
using tests::holdKey;

/// Under a real keyboard.
class ClientHeldKeyTest : public MainWindowFixture {
 protected:
  Commands::Program program() override {
    return {.showSettings = [this] { ++settingsShown; },
            .showShortcuts = [] {},
            .showAbout = [] {},
            .quit = [] {}};
  }

  void hold(const char* key, const char* button) {
    focusOn(*tests::buttonNamed(*window, button));
    holdKey(key, *window);
    waitForRest();
  }

  int settingsShown = 0;
};

TEST_F(ClientHeldKeyTest, ReloadsOnce) {
  hold("Return", "Reload");
  EXPECT_EQ(server.count("/agent.html"), 2);
}

TEST_F(ClientHeldKeyTest, OpensThePageInTheBrowserOnce) {
  hold("space", "Open externally");
  EXPECT_THAT(opened, SizeIs(1));
}

TEST_F(ClientHeldKeyTest, GoesBackByOnePage) {
  show("/pricing.html");
  show("/agent.html#connectorsCenter");
  hold("Return", "Back");
  EXPECT_EQ(*model->currentURLString, server.address("/pricing.html"));
}

TEST_F(ClientHeldKeyTest, PressesEveryButtonOnce) {
  auto buttons = tests::all<Gtk::Button>(*tests::all<ContentView>(*window).front());
  std::erase_if(buttons, [](auto* button) { return !button->get_mapped(); }); // those of a page's dialogs
  EXPECT_GE(buttons.size(), 11U);
  for (auto* button : buttons) {
    button->set_sensitive(true);
    int presses = 0;
    const auto counting = button->signal_clicked().connect([&] { ++presses; });
    focusOn(*button);
    holdKey("Return", *window);
    EXPECT_EQ(presses, 1) << ::testing::PrintToString(tests::texts(*button));
    sigc::connection(counting).disconnect();
  }
}

TEST_F(ClientHeldKeyTest, OpensTheMenuAndChoosesNothingFromIt) {
  auto* menu = tests::all<PrimaryMenu>(*window).front();
  menu->popup();
  ASSERT_TRUE(tests::eventually([&] { return menu->get_popover()->get_mapped(); }));
  menu->popdown();
  ASSERT_TRUE(tests::eventually([&] { return !menu->get_popover()->get_mapped(); }));
  focusOn(*tests::all<Gtk::ToggleButton>(*menu).front());
  holdKey("Return", *menu->get_popover());
  EXPECT_EQ(settingsShown, 0);
  EXPECT_TRUE(menu->get_popover()->get_mapped());
}

TEST_F(ClientHeldKeyTest, IsRepeatedInThePageItWentDownIn) {
  server.page("/field.html", "<textarea autofocus style='position:fixed;inset:0' "
                             "oninput=\"if (value.length > 5) location.hash = 'typed'\"></textarea>");
  show("/field.html");
  focusOn(model->webView().widget());
  runScript("document.querySelector('textarea').focus()");
  holdKey("space", *window);
  EXPECT_TRUE(tests::eventually([&] { return model->currentURLString->ends_with("#typed"); }));
}

TEST_F(ClientHeldKeyTest, IsNotRepeatedInAPageThatTheFocusCameTo) {
  server.page("/field.html", "<textarea autofocus style='position:fixed;inset:0' "
                             "oninput=\"location.hash = 'typed'\"></textarea>");
  show("/field.html");
  runScript("document.querySelector('textarea').focus()");
  auto* reload = tests::buttonNamed(*window, "Open externally");
  reload->signal_clicked().connect([this] { model->webView().widget().grab_focus(); });
  hold("space", "Open externally");
  EXPECT_THAT(opened, SizeIs(1));
  settle();
  EXPECT_EQ(*model->currentURLString, server.address("/field.html"));
}

} // namespace
} // namespace quorvel
