#include "e2e/stage/ClientTest.h"

#include <ranges>

namespace quorvel::e2e {
namespace {

namespace fs = std::filesystem;

class WindowTest : public ClientTest {};

TEST_F(WindowTest, ResizingChangesThePageAndNeverReloadsIt) {
  stage.servePage("agent.html",
                  "<script>addEventListener('resize', () => report('width=' + innerWidth));</script>");
  start();
  client().resize({1600, 1000});
  const auto pageWidth = 1600 - Client::border - 306 - 1;
  EXPECT_TRUE(eventually([&] { return stage.reports(); }, Contains("width=" + std::to_string(pageWidth))))
      << "the sidebar keeps its width, the page takes the rest";
  EXPECT_EQ(stage.requests().count(agentPage), 1);
}

TEST_F(WindowTest, CannotBecomeSmallerThanItsContentsMinimum) {
  start();
  const auto minimum = client().minimumSize();
  EXPECT_EQ(minimum.width, 1180 + Client::border);
  EXPECT_GE(minimum.height, 760);
  EXPECT_LE(minimum.height, 760 + Client::border + 50) << "the header bar stays slim";
}

TEST_F(WindowTest, ItsSizeIsRememberedInTheStateFolderAndNotAmongThePreferences) {
  start();
  client().resize({1500, 940});
  EXPECT_TRUE(eventually([&] { return client().size(); }, Eq(Size{1500, 940})));
  quit();
  EXPECT_EQ(fs::status(stage.state() / "quorvel").permissions(), fs::perms::owner_all);
  EXPECT_FALSE(fs::exists(stage.config() / "quorvel"));
  start();
  EXPECT_TRUE(eventually([&] { return client().size(); }, Eq(Size{1500, 940})));
  client().resize({1300, 900});
  EXPECT_TRUE(eventually([&] { return client().size(); }, Eq(Size{1300, 900})));
  client().press("Close");
  EXPECT_EQ(client().process().waitForEnd(), 0);
  start();
  EXPECT_TRUE(eventually([&] { return client().size(); }, Eq(Size{1300, 900})));
}

class FocusTest : public ClientTest {
 protected:
  /// Presses a key once, and the focus goes where it should.
  void reaches(const std::string& key, const std::string& name) {
    client().type(key);
    EXPECT_TRUE(eventually([&] { return client().focused(); }, Eq(name)));
  }
  void tabReaches(const std::string& name) { reaches("Tab", name); }
  void tabReachesInPage(const std::string& field) {
    client().type("Tab");
    EXPECT_TRUE(eventually([&] { return stage.reports(); }, Contains(field)));
  }
};

TEST_F(FocusTest, TabGoesThroughSidebarToolbarAndPageAndComesOutAgain) {
  stage.servePage("agent.html", "<input onfocus=\"report('first')\"><input onfocus=\"report('second')\">");
  start();
  for (const auto* name : {"Agent workspace", "Connectors", "Browser workspace", "Voice agent", "Pricing",
                           "Support", "Reload", "Open externally", "Page"})
    tabReaches(name);
  tabReachesInPage("first");
  tabReachesInPage("second");
  tabReaches("Main menu");
  tabReaches("+ New chat");
}

TEST_F(FocusTest, TheRoundVisitsTheSameStopsForwardsAndBackwardsTheTitleBarsIncluded) {
  start();
  const std::vector<std::string> forwards{
      "Agent workspace", "Connectors", "Browser workspace", "Voice agent", "Pricing", "Support", "Reload",
      "Open externally", "Page",       "Main menu",         "+ New chat"};
  for (const auto& stop : forwards)
    reaches("Tab", stop);
  for (const auto& stop : forwards | std::views::reverse | std::views::drop(1))
    reaches("shift+Tab", stop);
  reaches("shift+Tab", forwards.back());
}

TEST_F(FocusTest, ARowWorksFromTheKeyboardAlone) {
  start();
  for (const auto* name : {"Agent workspace", "Connectors", "Browser workspace", "Voice agent", "Pricing"})
    tabReaches(name);
  client().type("Return");
  waitForPage("/pricing.html");
  expectHighlighted({"Pricing"});
}

TEST_F(FocusTest, TheFocusIsVisible) {
  start();
  const std::string sidebar = "306x900+0+0";
  tabReaches("Agent workspace");
  tabReaches("Connectors");
  const auto onConnectors = stage.fingerprint(sidebar);
  tabReaches("Browser workspace");
  const auto onBrowserWorkspace = stage.fingerprint(sidebar);
  EXPECT_NE(onConnectors, onBrowserWorkspace);
}

} // namespace
} // namespace quorvel::e2e
