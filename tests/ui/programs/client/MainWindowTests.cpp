#include "programs/client/MainWindow.h"

#include "client/ContentView.h"
#include "commands/PrimaryMenu.h"
#include "programs/client/CommandMenu.h"
#include "programs/client/habits.h"
#include "support/RealInput.h"
#include "support/RightToLeft.h"
#include "ui/programs/client/MainWindowFixture.h"

namespace quorvel {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

/// With its menus, and the key that closes a window.
class MainWindowTest : public MainWindowFixture {
 protected:
  void SetUp() override {
    MainWindowFixture::SetUp();
    addClosingKey(*application);
  }

  CommandMenu& menuBar() { return *tests::all<CommandMenu>(*window).front(); }
  /// Whether the entry with this text can be chosen.
  bool isEnabled(const Glib::ustring& title) {
    for (auto* label : tests::all<Gtk::Label>(menuBar()))
      if (label->get_text() == title)
        return label->is_sensitive();
    ADD_FAILURE() << "no entry " << title;
    return false;
  }
  std::string key(const std::string& action) {
    const std::vector<Glib::ustring> keys = application->get_accels_for_action(action);
    EXPECT_LE(keys.size(), 1u) << action;
    return keys.empty() ? "" : std::string(keys.front());
  }
};

/// The texts of a menu as they are read, a dash for each divider.
std::vector<std::string> lines(const Glib::RefPtr<const Gio::MenuModel>& menu) {
  std::vector<std::string> result;
  for (int i = 0; i < menu->get_n_items(); ++i) {
    char* label = nullptr;
    if (g_menu_model_get_item_attribute(const_cast<GMenuModel*>(menu->gobj()), i, G_MENU_ATTRIBUTE_LABEL, "s",
                                        &label)) {
      result.emplace_back(label);
      std::erase(result.back(), '_');
      g_free(label);
    }
    if (const auto section = menu->get_item_link(i, Gio::MenuModel::Link::SECTION)) {
      if (i > 0)
        result.push_back("-");
      std::ranges::copy(lines(section), std::back_inserter(result));
    }
  }
  return result;
}

TEST_F(MainWindowTest, TheClientIsMadeOnceAndLaterThanTheWindowAppears) {
  MainWindow fresh(*model, *application, *commands);
  fresh.present();
  EXPECT_TRUE(tests::all<ContentView>(fresh).empty());
  const auto leastSize = [&] {
    Gtk::Requisition minimum, natural;
    fresh.get_preferred_size(minimum, natural);
    return std::pair(minimum.get_width(), minimum.get_height());
  };
  const auto empty = leastSize();
  ASSERT_TRUE(tests::eventually([&] { return !tests::all<ContentView>(fresh).empty(); }));
  const auto* client = tests::all<ContentView>(fresh).front();
  ASSERT_TRUE(tests::eventually([&] { return client->get_width() > 0; }));
  EXPECT_EQ(leastSize(), empty);
  EXPECT_EQ(client->get_width(), ContentView::minimumWidth);
  EXPECT_EQ(client->get_height(), ContentView::minimumHeight);
  fresh.set_visible(false);
  fresh.present();
  settle();
  EXPECT_THAT(tests::all<ContentView>(fresh), ElementsAre(client));
  fresh.close();
}

TEST_F(MainWindowTest, TheMenuBarHasTheMenuQuorvelWithItsSevenEntriesAndNoOther) {
  const auto bar = menuBar().get_menu_model();
  EXPECT_THAT(lines(bar), ElementsAre("Quorvel"));
  EXPECT_THAT(lines(bar->get_item_link(0, Gio::MenuModel::Link::SUBMENU)),
              ElementsAre("Open Agent Workspace", "Open Connectors", "-", "Back", "Forward", "Reload",
                          "Open in Browser"));
}

TEST_F(MainWindowTest, WhatConcernsTheProgramIsInThePrimaryMenu) {
  auto* button = tests::all<PrimaryMenu>(*window).front();
  EXPECT_THAT(lines(button->get_menu_model()),
              ElementsAre("Settings…", "Keyboard Shortcuts", "About", "Quit"));
}

TEST_F(MainWindowTest, TheListedKeysAreBoundAndNothingElse) {
  EXPECT_EQ(key("app.open-agent"), "<Control>n");
  EXPECT_EQ(key("app.open-connectors"), "") << "only the menu leads there";
  EXPECT_EQ(key("app.back"), "<Control>bracketleft");
  EXPECT_EQ(key("app.forward"), "<Control>bracketright");
  EXPECT_EQ(key("app.reload"), "<Control>r");
  EXPECT_EQ(key("app.open-externally"), "<Shift><Control>o");
  EXPECT_EQ(key("app.settings"), "<Control>comma");
  EXPECT_EQ(key("app.shortcuts"), "<Control>question");
  EXPECT_EQ(key("app.quit"), "<Control>q");
  EXPECT_EQ(key("window.close"), "<Control>w");
  EXPECT_THAT(application->list_action_descriptions(), SizeIs(9));
}

TEST_F(MainWindowTest, BackAndForwardAreEnabledAsTheHistoryAllowsAndTheRestAlways) {
  EXPECT_FALSE(isEnabled("Back"));
  EXPECT_FALSE(isEnabled("Forward"));
  show("/agent.html#connectorsCenter");
  EXPECT_TRUE(tests::eventually([&] { return isEnabled("Back"); }));
  window->activate_action("app.back");
  EXPECT_TRUE(tests::eventually([&] { return isEnabled("Forward") && !isEnabled("Back"); }));
  for (const char* title : {"Open Agent Workspace", "Open Connectors", "Reload", "Open in Browser"})
    EXPECT_TRUE(isEnabled(title)) << title;
}

TEST_F(MainWindowTest, ReloadAndOpenInBrowserStayEnabledWhileAPageLoads) {
  server.silence("/silent.html");
  model->load(server.address("/silent.html"));
  ASSERT_TRUE(tests::eventually([&] { return *model->isLoading; }));
  tests::drawFrame(*window);
  EXPECT_TRUE(isEnabled("Reload"));
  EXPECT_TRUE(isEnabled("Open in Browser"));
}

TEST_F(MainWindowTest, EachCommandDoesItsWork) {
  window->activate_action("app.open-connectors");
  EXPECT_EQ(*model->currentURLString, url(QuorvelRoute::connectors));
  window->activate_action("app.open-agent");
  EXPECT_EQ(*model->currentURLString, url(QuorvelRoute::agent));
  show("/pricing.html");
  window->activate_action("app.reload");
  EXPECT_TRUE(tests::eventually([&] { return server.count("/pricing.html") == 2; }));
  waitForRest();
  window->activate_action("app.open-externally");
  EXPECT_THAT(opened, ElementsAre(server.address("/pricing.html")));
}

TEST_F(MainWindowTest, WithoutHistoryTheBackCommandDoesNothing) {
  window->activate_action("app.back");
  window->activate_action("app.forward");
  settle();
  EXPECT_EQ(*model->currentURLString, server.address("/agent.html"));
  EXPECT_EQ(server.requests().size(), 1u);
}

TEST_F(MainWindowTest, TheWindowHasTheProgramsNameAndIcon) {
  EXPECT_EQ(window->get_title(), "Quorvel");
  EXPECT_EQ(window->get_icon_name(), "com.quorvel.Desktop");
}

TEST_F(MainWindowTest, TheContentKeepsItsLeastSizeBelowTheHeaderBar) {
  window->set_default_size(300, 200);
  tests::drawFrame(*window);
  auto* content = tests::all<ContentView>(*window).front();
  EXPECT_GE(content->get_width(), 1180);
  EXPECT_GE(content->get_height(), 760);
  EXPECT_LE(window->get_titlebar()->get_height(), 40) << "slim";
}

/// The brightest of all pixels between two columns of a window, from 0 to 255.
int brightest(Gtk::Window& window, int left, int right, const Gdk::Rectangle& rows) {
  const auto picture = tests::drawingOf(window);
  int most = 0;
  for (int y = rows.get_y(); y < rows.get_y() + rows.get_height(); ++y)
    for (int x = left; x < right; ++x)
      most = std::max(most, int{picture->get_data()[y * picture->get_stride() + 4 * x]});
  return most;
}

TEST_F(MainWindowTest, TheHeaderBarSaysTheNameOnceAndAsAMenu) {
  EXPECT_THAT(tests::texts(*window->get_titlebar()), ElementsAre("Quorvel"));
  auto* name = tests::labelled(menuBar(), "Quorvel");
  // What is bright in the entry before the name and behind it.
  const auto arrows = [&] {
    const auto text = tests::boundsInDrawing(*window, *name);
    const auto entry = tests::boundsInDrawing(*window, *name->get_parent());
    const int textEnd = text.get_x() + text.get_width(), entryEnd = entry.get_x() + entry.get_width();
    return std::pair(brightest(*window, entry.get_x(), text.get_x() - 1, entry) > 200,
                     brightest(*window, textEnd + 1, entryEnd, entry) > 200);
  };
  EXPECT_EQ(arrows(), std::pair(false, true));
  const tests::RightToLeft desktop;
  tests::drawFrame(*window);
  EXPECT_EQ(arrows(), std::pair(true, false));
}

class MirroredWindowTest : public MainWindowTest {
  const tests::RightToLeft desktop_;
};

TEST_F(MirroredWindowTest, TheKeysForBackAndForwardAreThoseThatTheArrowsPointTo) {
  show("/pricing.html");
  tests::clickOn(model->webView().widget());
  tests::strikeKey("alt+Right");
  waitForAddress("/agent.html");
  tests::strikeKey("alt+Left");
  waitForAddress("/pricing.html");
  tests::clickOn(*tests::buttonNamed(*window, "Reload"));
  ASSERT_TRUE(tests::eventually([&] { return server.count("/pricing.html") == 2; }));
  waitForRest();
  tests::strikeKey("alt+Right");
  waitForAddress("/agent.html");
}

} // namespace
} // namespace quorvel
