#include "e2e/stage/ClientTest.h"

#include <csignal>
#include <fstream>

namespace quorvel::e2e {
namespace {

namespace fs = std::filesystem;

/// A load that comes to nothing; some leave the page that began them where it is.
struct Failure {
  std::string name;
  std::string address;
  bool leavesThePage = true;
};

void PrintTo(const Failure& failure, std::ostream* out) {
  *out << failure.name;
}

class FailingLoadTest : public ClientTest, public testing::WithParamInterface<Failure> {
 protected:
  /// Until then nothing could be seen of a failure.
  void waitUntilItIsUnderWay() {
    const auto& address = GetParam().address;
    const bool isOfTheService = address.starts_with("/");
    if (isOfTheService) {
      EXPECT_TRUE(eventually([&] { return stage.requests().count(address); }, Eq(1)));
    }
    if (GetParam().leavesThePage)
      expectAddress(isOfTheService ? origin + address : address);
  }
};

TEST_P(FailingLoadTest, IsSilentAndEndsTheLoadingState) {
  stage.servePage("agent.html", linkTo(GetParam().address));
  start();
  client().clickPage();
  waitUntilItIsUnderWay();
  EXPECT_TRUE(eventually([&] { return !client().spins(); }));
  EXPECT_EQ(client().windows().size(), 1u) << "no dialog";
  if (!GetParam().leavesThePage)
    expectAddress(origin + agentPage);

  client().press("Pricing");
  waitForPage("/pricing.html");
  expectAddress(origin + "/pricing.html");
}

INSTANTIATE_TEST_SUITE_P(Load, FailingLoadTest,
                         testing::Values(Failure{"Refused", origin + ":444/"},
                                         Failure{"Unresolvable", "https://nowhere.quorvel.example/"},
                                         Failure{"BadCertificate", "https://untrusted.quorvel.example/"},
                                         Failure{"OutdatedTransport", "https://outdated.quorvel.example/"},
                                         Failure{"InternalServerError", "/status?code=500"},
                                         Failure{"NoContent", "/status?code=204", false},
                                         Failure{"CutOffInMidBody", "/cut-off"},
                                         Failure{"Download", "/download", false},
                                         Failure{"UnknownScheme", "nothing-knows-this:at-all"}),
                         [](const auto& failure) { return failure.param.name; });

class LoadingTest : public ClientTest {
 protected:
  void follow(const std::string& address, const Environment& environment = {}) {
    stage.servePage("agent.html", linkTo(address));
    start(environment);
    client().clickPage();
  }
  void expectNoRequestToAnotherSite() {
    client().press("Pricing");
    waitForPage("/pricing.html");
    for (const auto& request : stage.requests().requests())
      EXPECT_EQ("https://" + request.host, origin);
  }
};

TEST_F(LoadingTest, AnUntrustedSiteIsNeverAskedForAPage) {
  follow("https://untrusted.quorvel.example/agent.html");
  expectNoRequestToAnotherSite();
}

TEST_F(LoadingTest, ASiteThatSpeaksNoNewerTlsThan11IsNeverAskedForAPage) {
  follow("https://outdated.quorvel.example/pricing.html");
  expectNoRequestToAnotherSite();
}

TEST_F(LoadingTest, WhatTheUserHasSetForTlsStays) {
  follow("https://outdated.quorvel.example/pricing.html", {{"G_TLS_GNUTLS_PRIORITY", "NORMAL:%COMPAT"}});
  waitForPage("/pricing.html");
  EXPECT_EQ(stage.requests().requests().back().host, "outdated.quorvel.example");
}

TEST_F(LoadingTest, TheSpinnerShowsWhileAPageLoadsAndOnlyThen) {
  follow("/slow?seconds=2");
  EXPECT_TRUE(eventually([&] { return client().spins(); }));
  expectAddress(origin + "/slow?seconds=2");
  EXPECT_TRUE(eventually([&] { return !client().spins(); }));
}

TEST_F(LoadingTest, AServerThatSaysNothingKeepsTheSpinnerUntilAnotherPageIsChosen) {
  follow("/silent");
  EXPECT_TRUE(eventually([&] { return stage.requests().count("/silent"); }, Eq(1)));
  EXPECT_TRUE(eventually([&] { return client().spins(); }));
  client().press("Pricing");
  waitForPage("/pricing.html");
}

TEST_F(LoadingTest, ADownloadNeverReplacesAFileThatIsThere) {
  const auto folder = stage.folder() / "home" / "Downloads";
  fs::create_directories(folder);
  std::ofstream(stage.config() / "user-dirs.dirs") << "XDG_DOWNLOAD_DIR=\"$HOME/Downloads\"\n";
  std::ofstream(folder / "brief.txt") << "mine";
  follow("/download?name=brief.txt");
  EXPECT_TRUE(eventually([&] { return std::distance(fs::directory_iterator(folder), {}); }, Eq(2)));
  std::string text;
  std::getline(std::ifstream(folder / "brief.txt"), text);
  EXPECT_EQ(text, "mine");
}

TEST_F(LoadingTest, APageWhoseProcessDiesWhileItStartsEndsTheProgramWithWordsThatSaySo) {
  launch();
  EXPECT_TRUE(eventually([&] {
    const auto starting = descendants(client().process().id(), "WebKitWebProces");
    std::ranges::for_each(starting, [](pid_t id) { ::kill(id, SIGKILL); });
    return !starting.empty();
  }));
  EXPECT_EQ(client().process().waitForEnd(), 128 + SIGTRAP) << "the engine's own end, with its core dump";
  EXPECT_THAT(client().said(),
              HasSubstr("Quorvel has to stop: a process of the web engine ended while it was starting"));
  EXPECT_THAT(client().said(), Not(HasSubstr("It needs bubblewrap")));

  // Whoever started it from the desktop's menu does not see that.
  const auto shown = [] { return windowTitled("Quorvel has stopped"); };
  EXPECT_TRUE(eventually(shown, Not(IsEmpty())));
  const auto id = shown();
  const auto program = Accessible::ofProcess(std::stoi(outputOf({"xdotool", "getwindowpid", id})));
  ASSERT_TRUE(program.has_value());
  std::vector<std::string> heard;
  for (const auto& object : program->all())
    heard.push_back(object.name());
  EXPECT_THAT(heard, AllOf(Contains(HasSubstr("ended while it was starting")), Contains("Close")));
  outputOf({"xdotool", "windowfocus", "--sync", id, "key", "Return"});
  EXPECT_TRUE(eventually(shown, IsEmpty()));
}

TEST_F(LoadingTest, ReloadBringsBackAPageWhoseProcessHasDied) {
  start();
  client().killWebProcess();
  client().press("Reload");
  waitForPage("/agent.html", 2);
  expectAddress(origin + agentPage);
}

} // namespace
} // namespace quorvel::e2e
