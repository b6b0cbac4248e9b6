#include "e2e/stage/ClientTest.h"

namespace quorvel::e2e {
namespace {

namespace fs = std::filesystem;

class SessionTest : public ClientTest {};

TEST_F(SessionTest, ASignInCookieSurvivesARestart) {
  stage.servePage("agent.html", linkTo("/sign-in"));
  start();
  EXPECT_EQ(stage.requests().requests().back().cookie, "-");
  client().clickPage();
  waitForPage("/agent.html", 2);
  quit();

  const auto before = stage.requests().requests().size();
  start();
  EXPECT_EQ(stage.requests().requests().at(before).target, agentPage);
  EXPECT_THAT(stage.requests().requests().at(before).cookie, HasSubstr("quorvel_session=demo"));
}

TEST_F(SessionTest, LocalStorageSurvivesARestart) {
  stage.servePage("agent.html", "<script>report('kept=' + localStorage.getItem('draft'));"
                                "localStorage.setItem('draft', 'hello');</script>");
  start();
  EXPECT_TRUE(eventually([&] { return stage.reports(); }, Contains("kept=null")));
  quit();
  start();
  EXPECT_TRUE(eventually([&] { return stage.reports(); }, Contains("kept=hello")));
}

TEST_F(SessionTest, OtherAccountsCannotLookIntoTheFoldersOfTheSession) {
  start();
  for (const auto& folder : {stage.data() / "quorvel", stage.cache() / "quorvel"}) {
    ASSERT_TRUE(fs::is_directory(folder)) << folder;
    EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all) << folder;
  }
}

TEST_F(SessionTest, ASecondLaunchPresentsTheFirstWindowAndAsksTheServiceForNothing) {
  start();
  const auto requests = stage.requests().requests().size();
  Client second;
  EXPECT_EQ(second.process().waitForEnd(), 0);
  EXPECT_EQ(client().windows().size(), 1u);
  EXPECT_EQ(stage.requests().requests().size(), requests);
}

TEST_F(SessionTest, ClosingTheWindowEndsTheProgram) {
  start();
  client().press("Close");
  EXPECT_EQ(client().process().waitForEnd(), 0);
}

} // namespace
} // namespace quorvel::e2e
