#include "e2e/stage/ClientTest.h"

#include <cerrno>
#include <fstream>

namespace quorvel::e2e {
namespace {

namespace fs = std::filesystem;

/// Puts the program into surroundings that lack something.
class SurroundingsTest : public ClientTest {
 protected:
  /// The page is on the screen and answers to the keyboard.
  void expectWorkingPage() {
    waitForPage("/agent.html");
    client().type("ctrl+r");
    waitForPage("/agent.html", 2);
  }
  void flipASetting() {
    client().type("ctrl+comma");
    EXPECT_TRUE(eventually([&] { return client().window("Settings").has_value(); }));
    client().toggle("Settings", "Show inspector");
    EXPECT_TRUE(eventually([&] { return client().isOn("Settings", "Show inspector"); }, Eq(false)));
    client().type("Escape");
    EXPECT_TRUE(eventually([&] { return !client().window("Settings").has_value(); }));
  }
};

TEST_F(SurroundingsTest, NothingThatATestStartsCanWriteOutsideOfItsFolders) {
  for (const auto& folder :
       {fs::path("/"), fs::path("/home"), fs::path("/var/tmp"), stage.folder().parent_path()}) {
    std::ofstream file(folder / "quorvel-was-here");
    EXPECT_FALSE(file.is_open()) << folder;
    EXPECT_EQ(errno, EROFS) << folder;
  }
}

TEST_F(SurroundingsTest, WithoutADisplayTheProgramSaysSoInOneSentenceAndEnds) {
  Client client({{"DISPLAY", std::nullopt}});
  EXPECT_EQ(client.process().waitForEnd(), 1);
  EXPECT_EQ(client.said(), "Quorvel needs a display to show its window on, and found none.\n");
  EXPECT_THAT(stage.requests().requests(), IsEmpty());
}

/// A bus that the environment names, or does not, and that is not there.
struct NoBus {
  std::string name;
  std::string variable;
  std::optional<std::string> address;
};

void PrintTo(const NoBus& noBus, std::ostream* out) {
  *out << noBus.name;
}

const NoBus nothingInTheRootFolder{"NothingInTheRootFolder", "DBUS_SESSION_BUS_ADDRESS",
                                   "unix:path=/nonexistent"};

class NoBusTest : public SurroundingsTest {
 protected:
  void expectThePageShowsAndAnswers(const NoBus& noBus, const Arguments& through = {}) {
    // Where the owner's own bus lies in the usual place the toolkit would find it there.
    launch({{"XDG_RUNTIME_DIR", stage.folder() / "tmp"}, {noBus.variable, noBus.address}}, through);
    EXPECT_TRUE(eventually([&] { return stage.reports(); }, Contains("shown=/agent.html")))
        << client().said();
    EXPECT_NE(client().xWindow(), "");
    client().type("ctrl+r");
    EXPECT_TRUE(eventually([&] { return stage.requests().count(agentPage); }, Eq(2)));
    quit();
  }
};

class WithoutABusTest : public NoBusTest, public testing::WithParamInterface<NoBus> {};

TEST_P(WithoutABusTest, ThePageShowsAndAnswers) {
  expectThePageShowsAndAnswers(GetParam());
}

TEST_F(NoBusTest, ThePageShowsAndAnswersForRootToo) {
  mayLack = {"a user namespace"};
  expectThePageShowsAndAnswers(nothingInTheRootFolder, lacking("nothing-as-root"));
}

INSTANTIATE_TEST_SUITE_P(
    Bus, WithoutABusTest,
    testing::Values(nothingInTheRootFolder,
                    NoBus{"NoFolder", "DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/folder/bus"},
                    NoBus{"NoAddress", "DBUS_SESSION_BUS_ADDRESS", std::nullopt},
                    NoBus{"NoAccessibilityBus", "AT_SPI_BUS_ADDRESS", "unix:path=/nonexistent"}),
    [](const auto& noBus) { return noBus.param.name; });

/// What has the engine run pages without a sandbox.
struct Misled {
  std::string name;
  Environment environment;
  std::string file;
};

void PrintTo(const Misled& misled, std::ostream* out) {
  *out << misled.name;
}

class UnconfinedTest : public SurroundingsTest, public testing::WithParamInterface<Misled> {
 protected:
  std::vector<std::string> warnings() {
    auto texts = client().namesIn("Quorvel", ATSPI_ROLE_LABEL);
    std::erase_if(texts, [](const auto& text) { return !text.starts_with("Pages are not confined"); });
    return texts;
  }
  Arguments through() const {
    return GetParam().file.empty() ? Arguments()
                                   : lacking("no-sandbox", {stage.folder() / "tmp", GetParam().file});
  }
};

TEST_P(UnconfinedTest, PagesAreWarnedOfInTheWindowAndOnTheErrorOutput) {
  mayLack = {"a user namespace", "a mount namespace", "a process namespace", "a filter of system calls"};
  start(GetParam().environment, through());
  const auto isTheWarning =
      AllOf(HasSubstr("a mount namespace, a process namespace and a filter of system calls"),
            HasSubstr(GetParam().name));
  EXPECT_TRUE(eventually([&] { return warnings(); }, ElementsAre(isTheWarning)));
  EXPECT_THAT(client().said(), AllOf(HasSubstr("Quorvel: Pages are not confined"), isTheWarning));
  client().press("Pricing");
  waitForPage("/pricing.html");
  EXPECT_TRUE(eventually([&] { return warnings(); }, ElementsAre(isTheWarning))) << "it goes on being true";
}

INSTANTIATE_TEST_SUITE_P(
    Misled, UnconfinedTest,
    testing::Values(
        Misled{"WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS",
               {{"WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS", "1"}},
               ""},
        Misled{"/.flatpak-info", {}, "/.flatpak-info"}, Misled{"container", {}, "/run/.containerenv"},
        Misled{"SNAP", {{"SNAP", "/snap/other/1"}, {"SNAP_NAME", "other"}, {"SNAP_REVISION", "1"}}, ""}),
    [](const auto& misled) { return std::to_string(misled.index); });

TEST_F(SurroundingsTest, ConfinedPagesAreNotWarnedOf) {
  start();
  EXPECT_THAT(client().said(), Not(HasSubstr("confined")));
  EXPECT_THAT(client().namesIn("Quorvel", ATSPI_ROLE_LABEL), Not(Contains(HasSubstr("confined"))));
}

TEST_F(SurroundingsTest, WithoutAHomeFolderThePageShowsAndAnswers) {
  const std::string nowhere = "/proc/nowhere";
  start({{"HOME", nowhere},
         {"XDG_CONFIG_HOME", nowhere},
         {"XDG_DATA_HOME", nowhere},
         {"XDG_CACHE_HOME", nowhere},
         {"XDG_STATE_HOME", nowhere}});
  expectWorkingPage();
  flipASetting();
  quit();
}

TEST_F(SurroundingsTest, WithAReadOnlyConfigurationFolderASwitchStillFlips) {
  start({}, lacking("read-only", {stage.config()}));
  expectWorkingPage();
  flipASetting();
  quit();
  EXPECT_FALSE(fs::exists(stage.config() / "quorvel"));
}

TEST_F(SurroundingsTest, WithAFullDiskThePageShowsAndASwitchStillFlips) {
  start({}, lacking("full-disk", {stage.config(), stage.data(), stage.cache()}));
  expectWorkingPage();
  flipASetting();
  quit();
}

TEST_F(SurroundingsTest, WithoutANetworkTheWindowIsThereAndLoadsNothing) {
  launch({}, lacking("no-network"));
  EXPECT_TRUE(eventually([&] { return client().window().has_value(); }));
  EXPECT_TRUE(eventually([&] { return !client().spins(); }));
  expectAddress(origin + agentPage);
  client().press("Pricing");
  expectHighlighted({"Pricing"});
  EXPECT_TRUE(eventually([&] { return !client().spins(); }));
  EXPECT_EQ(client().windows().size(), 1u);
  client().press("Open externally");
  EXPECT_TRUE(eventually([&] { return stage.handedToSystem(); }, ElementsAre(origin + "/pricing.html")));
  quit();
}

} // namespace
} // namespace quorvel::e2e
