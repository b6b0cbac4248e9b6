#include "e2e/stage/ClientTest.h"

#include <fstream>

namespace quorvel::e2e {
namespace {

namespace fs = std::filesystem;

constexpr auto settings = "Settings";

class SettingsTest : public ClientTest {
 protected:
  void openSettings() {
    client().type("ctrl+comma");
    EXPECT_TRUE(eventually([&] { return client().window(settings).has_value(); }));
  }
  bool isOn(const std::string& name) { return client().isOn(settings, name); }
  void expectOn(const std::string& name, bool on) {
    EXPECT_TRUE(eventually([&] { return isOn(name); }, Eq(on))) << name;
  }
  fs::path file() const { return stage.config() / "quorvel" / "preferences.ini"; }
  std::string stored() const { return textOf(file()); }
  void store(const std::string& text) const {
    fs::create_directories(file().parent_path());
    std::ofstream(file()) << text;
  }
};

TEST_F(SettingsTest, OnAFreshAccountAllFourSwitchesAreOnInTheGivenOrder) {
  start();
  openSettings();
  EXPECT_TRUE(eventually([&] { return client().namesIn(settings, ATSPI_ROLE_LABEL); },
                         ElementsAre("Workspace", "Show inspector", "Daily command brief", "Approval gates",
                                     "Ad spend changes", "Customer-facing messages", "Settings")))
      << "and at last the title bar";
  for (const auto* name :
       {"Show inspector", "Daily command brief", "Ad spend changes", "Customer-facing messages"})
    EXPECT_TRUE(isOn(name)) << name;
  EXPECT_FALSE(fs::exists(file())) << "nothing is written before a switch is flipped";
}

TEST_F(SettingsTest, OpeningTheSettingsNeverTouchesThePage) {
  start();
  const auto before = stage.requests().targets();
  openSettings();
  client().toggle(settings, "Show inspector");
  expectOn("Show inspector", false);
  EXPECT_EQ(stage.requests().targets(), before);
  expectAddress(origin + agentPage);
}

TEST_F(SettingsTest, AFlippedSwitchIsWrittenAtOnceAndAlone) {
  start();
  openSettings();
  client().toggle(settings, "Ad spend changes");
  EXPECT_TRUE(eventually([&] { return stored(); }, HasSubstr("Quorvel.requireApprovalForSpend=false")));
  EXPECT_THAT(stored(), Not(HasSubstr("Quorvel.showInspector")));
  EXPECT_THAT(stored(), Not(HasSubstr("Quorvel.requireApprovalForCustomerMessages")));
  EXPECT_THAT(stored(), Not(HasSubstr("Quorvel.dailyBriefEnabled")));
}

TEST_F(SettingsTest, ASwitchKeepsItsPositionOverARestart) {
  start();
  openSettings();
  client().toggle(settings, "Daily command brief");
  EXPECT_TRUE(eventually([&] { return stored(); }, HasSubstr("Quorvel.dailyBriefEnabled=false")));
  client().type("Escape");
  EXPECT_TRUE(eventually([&] { return !client().window(settings).has_value(); }));
  quit();
  start();
  openSettings();
  expectOn("Daily command brief", false);
  expectOn("Show inspector", true);
}

TEST_F(SettingsTest, AChangeByAnotherProgramShowsAtOnceAndADeletedKeyIsOnAgain) {
  start();
  openSettings();
  client().toggle(settings, "Show inspector");
  EXPECT_TRUE(eventually([&] { return stored(); }, HasSubstr("Quorvel.showInspector=false")));
  auto text = stored();
  const std::string line = "Quorvel.showInspector=false";
  store(text.replace(text.find(line), line.size(), "Quorvel.dailyBriefEnabled=false"));
  expectOn("Show inspector", true);
  expectOn("Daily command brief", false);
}

TEST_F(SettingsTest, GarbageInTheFileCountsAsAbsentAndTheOtherKeysSurviveTheNextWrite) {
  start();
  openSettings();
  client().toggle(settings, "Ad spend changes");
  EXPECT_TRUE(eventually([&] { return stored(); }, HasSubstr("Quorvel.requireApprovalForSpend=false")));
  store(stored() +
        "Quorvel.showInspector=perhaps\nQuorvel.keepActivityHistory=false\n\x01 no line of any kind\n");
  client().toggle(settings, "Daily command brief");
  EXPECT_TRUE(eventually([&] { return stored(); }, HasSubstr("Quorvel.dailyBriefEnabled=false")));
  expectOn("Show inspector", true);
  EXPECT_THAT(stored(), HasSubstr("Quorvel.requireApprovalForSpend=false"));
  EXPECT_THAT(stored(), HasSubstr("Quorvel.keepActivityHistory=false"));
}

} // namespace
} // namespace quorvel::e2e
