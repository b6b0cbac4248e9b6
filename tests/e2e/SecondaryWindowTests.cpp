#include "e2e/stage/ClientTest.h"

namespace quorvel::e2e {
namespace {

constexpr auto settings = "Settings", shortcuts = "Keyboard Shortcuts", about = "About Quorvel";

/// The windows beside the main one, each with the focus while keys are struck.
class SecondaryWindowTest : public ClientTest {
 protected:
  void open(const std::string& title) {
    if (title == about) {
      client().press("Main menu");
      client().press("About");
    } else {
      client().type(title == settings ? "ctrl+comma" : "ctrl+question");
    }
    expectKeysIn(title);
  }
  void expectKeysIn(const std::string& title) {
    EXPECT_TRUE(eventually([&] { return client().windowWithKeys(); }, Eq(title)));
  }
  void expectClosed(const std::string& title) {
    EXPECT_TRUE(eventually([&] { return !client().window(title).has_value(); })) << title;
  }
};

TEST_F(SecondaryWindowTest, TheCommandsOfTheMenuActInEveryWindow) {
  start();
  client().press("Pricing");
  waitForPage("/pricing.html");
  int shown = 1;
  for (const auto* window : {settings, shortcuts, about}) {
    open(window);
    client().type("ctrl+n");
    waitForPage("/agent.html", ++shown);
    client().type("ctrl+bracketleft");
    waitForPage("/pricing.html", shown);
    client().type("Escape");
    expectClosed(window);
  }
}

TEST_F(SecondaryWindowTest, EachWindowOpensFromEveryOther) {
  start();
  for (const auto* window : {settings, shortcuts, about}) {
    open(window);
    client().type("ctrl+question");
    expectKeysIn(shortcuts);
    client().type("ctrl+comma");
    expectKeysIn(settings);
  }
}

TEST_F(SecondaryWindowTest, ControlQQuitsFromEveryWindow) {
  for (const auto* window : {settings, shortcuts, about}) {
    start();
    open(window);
    quit();
  }
}

TEST_F(SecondaryWindowTest, ClosingTheMainWindowEndsTheProgramWhateverElseIsOpen) {
  for (const auto* window : {settings, shortcuts, about}) {
    start();
    open(window);
    client().press("Close");
    EXPECT_EQ(client().process().waitForEnd(), 0) << window;
  }
}

TEST_F(SecondaryWindowTest, ASecondStartBringsBackTheMainWindowAndNoOther) {
  start();
  for (const auto* window : {settings, shortcuts, about}) {
    open(window);
    client().type("Escape");
    expectClosed(window);
  }
  Client second;
  EXPECT_EQ(second.process().waitForEnd(), 0);
  expectKeysIn("Quorvel");
  EXPECT_EQ(client().windows().size(), 1u);
}

TEST_F(SecondaryWindowTest, WhatAboutSaysIsCopiedAndCanBePastedIntoAReport) {
  stage.servePage("agent.html",
                  "<textarea style='position:fixed;inset:0;width:100%' onfocus=\"report('focus')\""
                  " oninput=\"report(encodeURIComponent(this.value.split('\\n')[0]))\"></textarea>");
  start();
  open(about);
  client().type("Return"); // the focus is on "Copy"
  client().type("Escape");
  expectClosed(about);
  client().clickPage();
  EXPECT_TRUE(eventually([&] { return stage.reports(); }, Contains("focus")));
  client().type("ctrl+v");
  EXPECT_TRUE(eventually([&] { return stage.reports(); }, Contains(testing::StartsWith("Quorvel%20"))));
}

TEST_F(SecondaryWindowTest, TheWebsiteThatAboutNamesOpensInTheBrowser) {
  start();
  open(about);
  client().type("Tab");
  client().type("Return");
  EXPECT_TRUE(eventually([&] { return stage.handedToSystem(); }, ElementsAre(origin)));
}

} // namespace
} // namespace quorvel::e2e
