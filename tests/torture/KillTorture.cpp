#include "e2e/stage/ClientTest.h"
#include "torture/torture.h"

namespace quorvel::e2e {
namespace {

class KillTorture : public ClientTest {
 protected:
  int timesShown() const {
    return static_cast<int>(std::ranges::count(stage.reports(), "shown=/agent.html"));
  }

  /// Kills the program's processes of this name again and again, each time in another moment of a load, and
  /// counts how often Reload then brings the page back.
  int timesReloadHelps(const std::string& process, int kills) {
    start();
    int helped = 0;
    for (int i = 0; i < kills; ++i) {
      client().type("ctrl+r");
      g_usleep(static_cast<unsigned>(i) * 17'000 % 300'000); // no waiting for anything: see above
      killDescendants(client().process().id(), process);
      EXPECT_TRUE(eventually([&] { return !client().spins(); })) << "kill " << i;
      const auto before = timesShown();
      client().type("ctrl+r");
      helped += bool(eventually([&] { return timesShown(); }, Gt(before)));
    }
    EXPECT_FALSE(client().process().status()) << client().said();
    return helped;
  }
};

TEST_F(KillTorture, ReloadBringsThePageBackAfterEveryKillOfItsProcess) {
  const int kills = rounds(40);
  const int helped = timesReloadHelps("WebKitWebProces", kills);
  figure(helped, " of ", kills, " kills of the page's process survived");
  EXPECT_EQ(helped, kills);
}

TEST_F(KillTorture, ReloadBringsThePageBackAfterEveryKillOfTheNetworkProcess) {
  const int kills = rounds(40);
  const int helped = timesReloadHelps("WebKitNetworkPr", kills);
  figure(helped, " of ", kills, " kills of the network process survived");
  EXPECT_EQ(helped, kills);
}

} // namespace
} // namespace quorvel::e2e
