#include "e2e/stage/ClientTest.h"

namespace quorvel::e2e {
namespace {

/// All with the focus inside the page, in a text field.
class ShortcutTest : public ClientTest {
 protected:
  static constexpr auto field =
      "<textarea style='position:fixed;inset:0;width:100%' onfocus=\"report('focus')\"></textarea>"
      "<script>addEventListener('keydown', event => {"
      "  if (['Control', 'Alt', 'Shift'].includes(event.key)) return;"
      "  event.preventDefault(); report('key=' + encodeURIComponent(event.key)); });</script>";

  void startInField() {
    for (const auto* page : {"agent.html", "pricing.html", "support.html"})
      stage.servePage(page, field);
    start();
    focusField(1);
  }
  void focusField(int times) {
    client().clickPage();
    EXPECT_TRUE(eventually([&] { return std::ranges::count(stage.reports(), "focus"); }, Ge(times)));
  }
};

TEST_F(ShortcutTest, ControlNOpensTheAgentWorkspace) {
  startInField();
  client().press("Pricing");
  waitForPage("/pricing.html");
  focusField(2);
  client().type("ctrl+n");
  expectAddress(origin + agentPage);
}

TEST_F(ShortcutTest, TheToolkitsOwnDeveloperWindowStaysShut) {
  start();
  ASSERT_TRUE(eventually([&] { return client().windowWithKeys(); }, Eq("Quorvel")));
  for (const auto* keys : {"ctrl+shift+i", "ctrl+shift+d", "ctrl+comma"})
    client().type(keys); // it would take the focus, and the last of the keys
  EXPECT_TRUE(eventually([&] { return client().windowWithKeys(); }, Eq("Settings")));
  EXPECT_THAT(client().windows(), SizeIs(2));
}

TEST_F(ShortcutTest, ControlBracketsGoBackAndForward) {
  startInField();
  client().press("Pricing");
  waitForPage("/pricing.html");
  focusField(2);
  client().type("ctrl+bracketleft");
  expectAddress(origin + agentPage);
  EXPECT_TRUE(eventually([&] { return client().isEnabled("Forward"); }));
  client().type("ctrl+bracketright");
  expectAddress(origin + "/pricing.html");
}

TEST_F(ShortcutTest, ControlBracketsDoNothingWithoutHistory) {
  startInField();
  client().type("ctrl+bracketleft");
  client().type("ctrl+bracketright");
  client().type("ctrl+r");
  EXPECT_TRUE(eventually([&] { return stage.requests().count(agentPage); }, Eq(2)))
      << "the reload that followed";
  expectAddress(origin + agentPage);
  EXPECT_FALSE(client().isEnabled("Back"));
  EXPECT_FALSE(client().isEnabled("Forward"));
}

TEST_F(ShortcutTest, ControlRReloads) {
  startInField();
  client().type("ctrl+r");
  EXPECT_TRUE(eventually([&] { return stage.requests().count(agentPage); }, Eq(2)));
}

TEST_F(ShortcutTest, ControlShiftOOpensThePageInTheBrowser) {
  startInField();
  client().type("ctrl+shift+o");
  EXPECT_TRUE(eventually([&] { return stage.handedToSystem(); }, ElementsAre(origin + agentPage)));
}

TEST_F(ShortcutTest, EveryOtherControlKeyReachesThePage) {
  startInField();
  const std::string keys = "abcdefghijklmopstuvxyz0123456789";
  for (const char key : keys) {
    client().type(std::string("ctrl+") + key);
    EXPECT_TRUE(eventually([&] { return stage.reports(); }, Contains(std::string("key=") + key)));
  }
  for (const auto* key : {"alt+Left", "F5", "ctrl+Tab"}) {
    const auto before = stage.reports().size();
    client().type(key);
    EXPECT_TRUE(eventually([&] { return stage.reports().size(); }, Gt(before))) << key;
  }
  EXPECT_EQ(stage.requests().count(agentPage), 1);
}

TEST_F(ShortcutTest, ControlQQuits) {
  startInField();
  quit();
}

} // namespace
} // namespace quorvel::e2e
