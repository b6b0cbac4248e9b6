#include "e2e/stage/ClientTest.h"

namespace quorvel::e2e {
namespace {

class NewWindowTest : public ClientTest {
 protected:
  void expectOpensInTheSameView(const std::string& agentHtml) {
    stage.servePage("agent.html", agentHtml);
    start();
    client().clickPage();
    waitForPage("/pricing.html");
    expectAddress(origin + "/pricing.html");
    EXPECT_EQ(client().windows().size(), 1u);
    client().press("Back");
    expectAddress(origin + agentPage);
  }
};

TEST_F(NewWindowTest, ABlankTargetLinkLoadsInTheSameViewAndBackReturns) {
  expectOpensInTheSameView(linkTo("/pricing.html", "target=_blank"));
}

TEST_F(NewWindowTest, ANamedTargetLinkLoadsInTheSameViewAndBackReturns) {
  expectOpensInTheSameView(linkTo("/pricing.html", "target=elsewhere"));
}

TEST_F(NewWindowTest, AWindowOpenedByAScriptLoadsInTheSameViewAndBackReturns) {
  expectOpensInTheSameView(buttonFor("window.open('/pricing.html', 'popup', 'width=300,height=200')"));
}

TEST_F(NewWindowTest, AScriptMayOpenAWindowWithoutBeingAsked) {
  stage.servePage("agent.html", "<script>setTimeout(() => window.open('/pricing.html'))</script>");
  start();
  waitForPage("/pricing.html");
  EXPECT_EQ(client().windows().size(), 1u);
}

TEST_F(NewWindowTest, AnEmptyWindowOpenDoesNothing) {
  stage.servePage("agent.html",
                  buttonFor("window.open(); window.open(''); window.open('about:blank'); report('opened')"));
  start();
  client().clickPage();
  EXPECT_TRUE(eventually([&] { return stage.reports(); }, Contains("opened")));
  client().type("ctrl+r");
  waitForPage("/agent.html", 2);
  expectAddress(origin + agentPage);
  EXPECT_FALSE(client().isEnabled("Back"));
  EXPECT_EQ(client().windows().size(), 1u);
}

} // namespace
} // namespace quorvel::e2e
