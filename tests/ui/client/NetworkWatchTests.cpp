#include "engine/NetworkWatch.h"
#include "engine/SystemProcess.h"
#include "ui/client/DownloadTest.h"

#include <algorithm>
#include <csignal>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvel {
namespace {

using ::testing::Eq;

std::vector<SystemProcess> networkProcesses() {
  return SystemProcess::ourselves().descendants("WebKitNetworkProcess");
}

enum class Work { none, endless };

/// A second process of the kind that asks the network, beside the engine's own.
class NetworkStandIn {
 public:
  explicit NetworkStandIn(Work work) : id_(::fork()) {
    if (id_ == 0)
      run(work);
    EXPECT_TRUE(tests::eventually([&] { return exists(); }));
  }
  ~NetworkStandIn() {
    ::kill(id_, SIGKILL);
    ::waitpid(id_, nullptr, 0);
  }
  NetworkStandIn(const NetworkStandIn&) = delete;
  NetworkStandIn& operator=(const NetworkStandIn&) = delete;

  bool exists() const {
    return std::ranges::count(networkProcesses(), id_, [](const auto& each) { return each.id(); }) > 0;
  }

 private:
  [[noreturn]] static void run(Work work) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::prctl(PR_SET_NAME, "WebKitNetworkProcess");
    for (;;)
      if (work == Work::none)
        ::pause();
  }

  pid_t id_;
};

/// The owner is waiting for a page, and its server takes its time.
class SlowServerTest : public DownloadTest {
 protected:
  void SetUp() override {
    DownloadTest::SetUp();
    show("/agent.html");
    server.silence("/slow.html");
  }
  void askForPage() {
    page_ = SystemProcess::ourselves().descendants("WebKitWebProcess").at(0).id();
    const int before = requests();
    model->load(server.address("/slow.html"));
    ASSERT_TRUE(tests::eventually([&] { return requests(); }, Eq(before + 1)));
  }
  /// Lets the time pass until it is known whether the process that asks the network rests.
  void letPatienceEnd() {
    timer.letOff(NetworkWatch::patience);
    letLookEnd();
  }
  void letLookEnd() {
    const auto end = std::chrono::steady_clock::now() + NetworkWatch::look;
    ASSERT_TRUE(tests::eventually([&] { return std::chrono::steady_clock::now() >= end; }));
    timer.letOff(NetworkWatch::look);
  }
  void expectAnotherPageAsks() {
    EXPECT_TRUE(tests::eventually([&] { return requests(); }, Eq(2)));
    EXPECT_FALSE(isPageThere());
  }
  int requests() const { return server.count("/slow.html"); }
  bool isPageThere() const { return SystemProcess(page_).exists(); }

 private:
  pid_t page_ = 0;
};

TEST_F(SlowServerTest, IsWaitedFor) {
  const NetworkStandIn idle(Work::none);
  askForPage();
  letPatienceEnd();
  settle();
  EXPECT_TRUE(isPageThere());
  EXPECT_TRUE(idle.exists());
  EXPECT_EQ(requests(), 1);
  EXPECT_FALSE(timer.isRunning(NetworkWatch::look));
}

TEST_F(SlowServerTest, ThePageMakesWayForTheNextWhereTheNetworksProcessDoesNotRestAndThenThatProcessDoes) {
  const NetworkStandIn busy(Work::endless);
  askForPage();
  letPatienceEnd();
  expectAnotherPageAsks();
  EXPECT_TRUE(busy.exists());
  letLookEnd();
  EXPECT_TRUE(tests::eventually([&] { return !busy.exists(); }));
}

TEST_F(SlowServerTest, WhatTheEndOfTheNetworksProcessInterruptsIsAskedForAgainWithTheSameSignIn) {
  runScript("document.cookie = 'signIn=yes; Max-Age=1000'");
  const NetworkStandIn busy(Work::endless);
  askForPage();
  letPatienceEnd();
  expectAnotherPageAsks();
  for (const auto& each : networkProcesses())
    ::kill(each.id(), SIGKILL);
  EXPECT_TRUE(tests::eventually([&] { return requests(); }, Eq(3)));
  EXPECT_EQ(server.requests().back().cookies, "signIn=yes");
}

TEST_F(SlowServerTest, TheNetworksProcessStaysAsLongAsADownloadDependsOnIt) {
  serveHalfAFile("/half.bin");
  startDownload("/half.bin");
  const NetworkStandIn busy(Work::endless);
  askForPage();
  letPatienceEnd();
  expectAnotherPageAsks();
  letLookEnd();
  settle();
  EXPECT_TRUE(busy.exists());
}

TEST_F(SlowServerTest, NothingMakesWayOnceThePageIsThere) {
  const NetworkStandIn busy(Work::endless);
  askForPage();
  timer.letOff(NetworkWatch::patience);
  show("/pricing.html");
  letLookEnd();
  settle();
  EXPECT_TRUE(isPageThere());
  EXPECT_TRUE(busy.exists());
}

TEST_F(SlowServerTest, WhoAsksAgainAndAgainWaitsNoLonger) {
  askForPage();
  const int starts = timer.starts(NetworkWatch::patience);
  askForPage();
  EXPECT_EQ(timer.starts(NetworkWatch::patience), starts);
}

} // namespace
} // namespace quorvel
