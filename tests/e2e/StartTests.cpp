#include "e2e/stage/ClientTest.h"

#include <unistd.h>

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
  // Where nobody can have a user namespace, root's tests stay root's.
  EXPECT_EQ(client().said(), ::geteuid() != 0 ? ""
                                              : "Quorvel runs as root, and so do its pages inside their "
                                                "sandbox; an ordinary user's lack such rights.\n");
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
