#include "e2e/stage/ClientTest.h"

namespace quorvel::e2e {
namespace {

class HistoryTest : public ClientTest {
 protected:
  void expectHistory(bool back, bool forward) {
    EXPECT_TRUE(eventually([&] { return client().isEnabled("Back"); }, Eq(back)));
    EXPECT_TRUE(eventually([&] { return client().isEnabled("Forward"); }, Eq(forward)));
  }
};

TEST_F(HistoryTest, AtTheStartTheAgentAddressShowsAndNeitherBackNorForwardIsEnabled) {
  start();
  expectAddress(origin + agentPage);
  expectHighlighted({"Agent workspace"});
  expectHistory(false, false);
}

TEST_F(HistoryTest, ChoosingConnectorsOnTheAgentPageKeepsTheDocumentAndCanBeTakenBack) {
  stage.servePage("agent.html",
                  "<script>addEventListener('hashchange', () => report(location.hash.slice(1)));</script>");
  start();
  client().press("Connectors");
  EXPECT_TRUE(eventually([&] { return stage.reports(); }, Contains("connectorsCenter")));
  expectHistory(true, false);

  client().press("Back");
  expectAddress(origin + agentPage);
  expectHighlighted({"Agent workspace"});
  expectHistory(false, true);

  client().press("Forward");
  expectAddress(origin + agentPage + "#connectorsCenter");
  expectHighlighted({"Connectors"});
  expectHistory(true, false);
  EXPECT_EQ(stage.requests().count(agentPage), 1) << "the page never had to be loaded again";
}

TEST_F(HistoryTest, APagesOwnPushStateShows) {
  stage.servePage("agent.html", buttonFor("history.pushState(null, '', '/orders/7')"));
  start();
  client().clickPage();
  expectAddress(origin + "/orders/7");
  expectHistory(true, false);
  client().press("Back");
  expectAddress(origin + agentPage);
  expectHistory(false, true);
}

TEST_F(HistoryTest, APagesOwnFragmentChangeShows) {
  stage.servePage("agent.html", buttonFor("location.hash = 'voiceAgentCard'"));
  start();
  client().clickPage();
  expectAddress(origin + agentPage + "#voiceAgentCard");
  expectHighlighted({"Voice agent"});
  expectHistory(true, false);
}

TEST_F(HistoryTest, BackAndForwardGoBetweenPages) {
  start();
  client().press("Pricing");
  waitForPage("/pricing.html");
  client().press("Support");
  waitForPage("/support.html");
  client().press("Back");
  expectAddress(origin + "/pricing.html");
  expectHistory(true, true);
  client().press("Forward");
  expectAddress(origin + "/support.html");
  expectHistory(true, false);
}

TEST_F(HistoryTest, ReloadAsksForThePageAgain) {
  start();
  client().press("Reload");
  EXPECT_TRUE(eventually([&] { return stage.requests().count(agentPage); }, Eq(2)));
}

TEST_F(HistoryTest, NewChatOpensTheAgentPage) {
  start();
  client().press("Support");
  waitForPage("/support.html");
  client().press("+ New chat");
  expectAddress(origin + agentPage);
  expectHighlighted({"Agent workspace"});
}

} // namespace
} // namespace quorvel::e2e
