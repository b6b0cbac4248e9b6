#include "e2e/stage/ClientTest.h"
#include "torture/torture.h"

namespace quorvel::e2e {
namespace {

constexpr auto pageProcess = "WebKitWebProces";

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

  /// Starts the program and kills its page's process in its first moments.
  void killAtLaunch(std::chrono::milliseconds after) {
    launch();
    const auto program = client().process().id();
    EXPECT_TRUE(eventually([&] { return !descendants(program, pageProcess).empty(); }));
    g_usleep(static_cast<unsigned>(after.count()) * 1'000); // no waiting for anything: see above
    killDescendants(program, pageProcess);
  }
  /// Whether the program lives and shows the page, for which it may take a Reload. Otherwise it has ended.
  bool recovers() {
    const auto hasEnded = [&] { return client().process().status().has_value(); };
    EXPECT_TRUE(eventually([&] { return hasEnded() || client().isEnabled("Reload"); }));
    const auto before = timesShown();
    client().type("ctrl+r");
    EXPECT_TRUE(eventually([&] { return hasEnded() || timesShown() > before; }));
    return !hasEnded();
  }
  /// Whether it has said why it ended, on the error output and in a window, which this closes.
  bool explainsItsEnd() {
    const auto window = [] { return windowTitled("Quorvel has stopped"); };
    if (!eventually(window, Not(IsEmpty())))
      return false;
    outputOf({"xdotool", "windowfocus", "--sync", window(), "key", "Return"});
    return client().said().find("ended while it was starting") != std::string::npos &&
           eventually(window, IsEmpty());
  }
};

TEST_F(KillTorture, ReloadBringsThePageBackAfterEveryKillOfItsProcess) {
  const int kills = rounds(40);
  const int helped = timesReloadHelps(pageProcess, kills);
  figure(helped, " of ", kills, " kills of the page's process survived");
  EXPECT_EQ(helped, kills);
}

TEST_F(KillTorture, AfterAKillAtItsLaunchThePageComesBackOrTheProgramEndsWithTheReason) {
  const int kills = rounds(30);
  int recovered = 0, explained = 0;
  for (int i = 0; i < kills; ++i) {
    killAtLaunch(std::chrono::milliseconds(i * 7 % 16));
    recovers() ? ++recovered : explained += explainsItsEnd();
  }
  figure("of ", kills, " kills at the launch of the page's process ", recovered, " survived, ", explained,
         " explained");
  EXPECT_EQ(recovered + explained, kills);
}

TEST_F(KillTorture, ReloadBringsThePageBackAfterEveryKillOfTheNetworkProcess) {
  const int kills = rounds(40);
  const int helped = timesReloadHelps("WebKitNetworkPr", kills);
  figure(helped, " of ", kills, " kills of the network process survived");
  EXPECT_EQ(helped, kills);
}

} // namespace
} // namespace quorvel::e2e
