#include "e2e/stage/ClientTest.h"

#include <regex>
#include <unistd.h>

namespace quorvel::e2e {
namespace {

class StartTest : public ClientTest {
 protected:
  /// Without what a page's process, from 2.52 on, may say of its end: that the way to the session bus has
  /// gone before it.
  std::string saidBeforeItsEnd() {
    static const std::regex farewell(
        "\n\\(process:\\d+\\): GLib-GIO-WARNING [^\n]*Error releasing name [^\n]*\n");
    return std::regex_replace(client().said(), farewell, "");
  }
};

TEST_F(StartTest, NormalUsePrintsNothing) {
  start();
  client().type("ctrl+comma");
  EXPECT_TRUE(eventually([&] { return client().windowWithKeys(); }, Eq("Settings")));
  client().press("Pricing");
  waitForPage("/pricing.html");
  quit();
  // Where nobody can have a user namespace, root's tests stay root's.
  EXPECT_EQ(saidBeforeItsEnd(), ::geteuid() != 0 ? ""
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
