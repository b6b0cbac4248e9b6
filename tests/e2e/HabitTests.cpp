#include "e2e/stage/ClientTest.h"

namespace quorvel::e2e {
namespace {

/// Keys and buttons that people know from other programs.
class HabitTest : public ClientTest {
 protected:
  /// Goes from the agent page to a second one, where the focus is in a text field.
  void startInSecondPage(const std::string& script = "") {
    stage.servePage(
        "pricing.html",
        "<textarea style='position:fixed;inset:0;width:100%' onfocus=\"report('focus')\"></textarea>"
        "<script>" +
            script + "</script>");
    start();
    client().press("Pricing");
    waitForPage("/pricing.html");
    EXPECT_TRUE(eventually([&] { return client().isEnabled("Back"); }));
    client().clickPage();
    EXPECT_TRUE(eventually([&] { return stage.reports(); }, Contains("focus")));
  }
  void pressMouse(const std::string& button) { outputOf({"xdotool", "click", button}); }
};

TEST_F(HabitTest, AltWithAnArrowGoesBackAndForward) {
  startInSecondPage();
  client().type("alt+Left");
  waitForPage("/agent.html", 2);
  client().type("alt+Right");
  waitForPage("/pricing.html", 2);
}

TEST_F(HabitTest, TheSideButtonsOfAMouseGoBackAndForwardUnseenByThePage) {
  startInSecondPage("for (const kind of ['pointerdown', 'pointerup', 'auxclick'])"
                    "  addEventListener(kind, event => event.button && report('side button'));");
  pressMouse("8");
  waitForPage("/agent.html", 2);
  pressMouse("9");
  waitForPage("/pricing.html", 2);
  EXPECT_THAT(stage.reports(), Not(Contains("side button")));
}

TEST_F(HabitTest, F5Reloads) {
  startInSecondPage();
  client().type("F5");
  EXPECT_TRUE(eventually([&] { return stage.requests().count("/pricing.html"); }, Eq(2)));
}

class UndoTest : public HabitTest {
 protected:
  static constexpr auto tells = "document.querySelector('textarea').oninput ="
                                "  event => report('text=' + event.target.value);";
  void expectText(const std::string& text, int times) {
    EXPECT_TRUE(eventually([&] { return std::ranges::count(stage.reports(), "text=" + text); }, Eq(times)));
  }
};

TEST_F(UndoTest, ControlZTakesBackWhatWasTypedAndWithShiftBringsItBack) {
  startInSecondPage(tells);
  client().write("ab");
  expectText("ab", 1);
  client().type("ctrl+z");
  expectText("", 1);
  client().type("ctrl+shift+z");
  expectText("ab", 2);
}

TEST_F(UndoTest, APageThatUsesTheKeyItselfKeepsIt) {
  startInSecondPage(std::string(tells) + "addEventListener('keydown', event => {"
                                         "  if (event.key != 'z') return;"
                                         "  event.preventDefault(); report('own-use'); });");
  client().write("ab");
  expectText("ab", 1);
  client().type("ctrl+z");
  EXPECT_TRUE(eventually([&] { return stage.reports(); }, Contains("own-use")));
  client().write("c");
  expectText("abc", 1);
}

TEST_F(HabitTest, OutsideThePageTheKeysActToo) {
  start();
  client().press("Pricing");
  waitForPage("/pricing.html");
  client().type("F5");
  waitForPage("/pricing.html", 2);
  client().type("alt+Left");
  waitForPage("/agent.html", 2);
}

TEST_F(HabitTest, AKeyThatThePageUsesIsThePages) {
  startInSecondPage("addEventListener('keydown', event => {"
                    "  if (event.key == 'Alt') return;"
                    "  event.preventDefault(); report('key=' + event.key); });");
  for (const std::string key : {"alt+Left", "alt+Right", "F5"})
    client().type(key);
  EXPECT_TRUE(eventually([&] { return stage.reports(); }, Contains("key=F5")));
  client().type("ctrl+bracketleft");
  waitForPage("/agent.html", 2);
  EXPECT_THAT(stage.reports(), Contains("key=ArrowLeft"));
  EXPECT_THAT(stage.reports(), Contains("key=ArrowRight"));
  EXPECT_EQ(stage.requests().count("/pricing.html"), 1);
}

TEST_F(HabitTest, AFrameInThePageLeavesTheKeysToTheProgramAsThePageDoes) {
  stage.servePage("frame.html", "<textarea autofocus onfocus=\"report('inside')\"></textarea>");
  stage.servePage("pricing.html",
                  "<iframe src='frame.html' style='position:fixed;inset:0;width:100%'></iframe>");
  start();
  client().press("Pricing");
  waitForPage("/pricing.html");
  client().clickPage();
  EXPECT_TRUE(eventually([&] { return stage.reports(); }, Contains("inside")));
  client().type("alt+Left");
  waitForPage("/agent.html", 2);
}

TEST_F(HabitTest, APageThatGoesElsewhereAgainAndAgainCannotKeepTheKeysFromActing) {
  startInSecondPage("const leave = () => { location.href = '/status?code=204&' + Math.random() };"
                    "document.querySelector('textarea').onfocus ="
                    "  () => report('focus').then(() => setInterval(leave, 0));");
  client().type("alt+Left");
  waitForPage("/agent.html", 2);
}

/// A page that hangs as soon as the focus is in it, and so never says what it makes of a key.
class HangingHabitTest : public HabitTest {
 protected:
  void startInHangingPage() {
    startInSecondPage("document.querySelector('textarea').onfocus ="
                      "  () => report('focus').then(() => { while (true) {} });");
  }
};

TEST_F(HangingHabitTest, AltWithAnArrowGoesBack) {
  startInHangingPage();
  client().type("alt+Left");
  waitForPage("/agent.html", 2);
}

TEST_F(HangingHabitTest, F5Reloads) {
  startInHangingPage();
  client().type("F5");
  waitForPage("/pricing.html", 2);
}

TEST_F(HangingHabitTest, TheSideButtonOfAMouseGoesBack) {
  startInHangingPage();
  pressMouse("8");
  waitForPage("/agent.html", 2);
}

TEST_F(HabitTest, NoOtherKeyGoesBack) {
  startInSecondPage();
  for (const std::string key : {"BackSpace", "alt+shift+Left", "ctrl+Left", "alt+ctrl+Left", "Left"})
    client().type(key);
  client().type("F5");
  waitForPage("/pricing.html", 2);
}

TEST_F(HabitTest, WithoutHistoryNothingHappens) {
  start();
  client().clickPage();
  for (const std::string key : {"alt+Left", "alt+Right"})
    client().type(key);
  pressMouse("8");
  pressMouse("9");
  client().type("F5");
  waitForPage("/agent.html", 2);
  expectAddress(origin + agentPage);
  EXPECT_EQ(stage.requests().count(agentPage), 2);
}

TEST_F(HabitTest, ControlWClosesTheWindowThatHasTheFocus) {
  start();
  client().type("ctrl+comma");
  EXPECT_TRUE(eventually([&] { return client().windowWithKeys(); }, Eq("Settings")));
  client().type("ctrl+w");
  EXPECT_TRUE(eventually([&] { return !client().window("Settings").has_value(); }));
  client().clickPage();
  client().type("ctrl+w");
  EXPECT_EQ(client().process().waitForEnd(), 0);
}

} // namespace
} // namespace quorvel::e2e
