#include "e2e/stage/ClientTest.h"

namespace quorvel::e2e {
namespace {

constexpr auto button = "Open externally";

class OpenInBrowserTest : public ClientTest {};

TEST_F(OpenInBrowserTest, HandsOverThePresentAddress) {
  start();
  client().press("Connectors");
  expectAddress(origin + agentPage + "#connectorsCenter");
  client().press(button);
  EXPECT_TRUE(eventually([&] { return stage.handedToSystem(); },
                         ElementsAre(origin + agentPage + "#connectorsCenter")));
}

TEST_F(OpenInBrowserTest, HandsOverAForeignAddress) {
  stage.servePage("agent.html", linkTo("https://www.neighbour.example/news.html"));
  stage.servePage("news.html", "News");
  start();
  client().clickPage();
  waitForPage("/news.html");
  expectAddress("https://www.neighbour.example/news.html");
  client().press(button);
  EXPECT_TRUE(eventually([&] { return stage.handedToSystem(); },
                         ElementsAre("https://www.neighbour.example/news.html")));
}

TEST_F(OpenInBrowserTest, HandsOverTheAgentAddressWhenThereIsNoPage) {
  start();
  client().press("Pricing");
  waitForPage("/pricing.html");
  client().killWebProcess();
  EXPECT_TRUE(eventually(
      [&] {
        client().press(button);
        return stage.handedToSystem();
      },
      Contains(origin + agentPage)));
}

} // namespace
} // namespace quorvel::e2e
