#include "e2e/stage/ClientTest.h"

namespace quorvel::e2e {
namespace {

class MenuTest : public ClientTest {
 protected:
  std::vector<std::string> shownEntries() {
    auto names = client().namesIn("Quorvel", ATSPI_ROLE_MENU_ITEM);
    std::erase(names, "Quorvel");
    return names;
  }
};

TEST_F(MenuTest, TheMenuHasItsSixCommandsInOrder) {
  start();
  client().type("F10");
  EXPECT_TRUE(eventually([&] { return shownEntries(); },
                         ElementsAre("Open Agent Workspace", "Open Connectors", "Back", "Forward", "Reload",
                                     "Open in Browser")));
}

TEST_F(MenuTest, OpenConnectorsIsChosenWithTheMenusOwnKeys) {
  start();
  client().type("F10");
  EXPECT_TRUE(eventually([&] { return shownEntries(); }, Contains("Open Connectors")));
  client().type("Down");
  client().type("Return");
  expectAddress(origin + agentPage + "#connectorsCenter");
}

TEST_F(MenuTest, TheMenuOpensByItsMnemonic) {
  start();
  client().type("alt+q");
  EXPECT_TRUE(eventually([&] { return shownEntries(); }, Contains("Open Agent Workspace")));
}

} // namespace
} // namespace quorvel::e2e
