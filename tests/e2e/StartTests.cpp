#include "e2e/stage/ClientTest.h"

namespace quorvel::e2e {
namespace {

using StartTest = ClientTest;

TEST_F(StartTest, NormalUsePrintsNothing) {
  start();
  client().type("ctrl+comma");
  EXPECT_TRUE(eventually([&] { return client().windowWithKeys(); }, Eq("Settings")));
  client().press("Pricing");
  waitForPage("/pricing.html");
  quit();
  EXPECT_EQ(client().said(), "");
}

TEST_F(StartTest, TheFirstRequestIsTheAgentPageAndNamesTheClient) {
  start();
  ASSERT_TRUE(eventually([&] { return !stage.requests().requests().empty(); }));
  const auto first = stage.requests().requests().front();
  EXPECT_EQ(first.method, "GET");
  EXPECT_EQ("https://" + first.host, origin);
  EXPECT_EQ(first.target, agentPage);
  EXPECT_THAT(first.userAgent, EndsWith("Quorvel Desktop"));
}

} // namespace
} // namespace quorvel::e2e
