#include "e2e/stage/ClientTest.h"

#include <fstream>
#include <regex>
#include <unistd.h>

namespace quorvel::e2e {
namespace {

namespace fs = std::filesystem;

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

TEST_F(StartTest, ADesktopThatIsDarkByItselfGetsTheSameWindow) {
  start();
  const auto usual = client().minimumSize();
  quit();
  fs::create_directories(stage.config() / "gtk-4.0");
  std::ofstream(stage.config() / "gtk-4.0" / "settings.ini") << "[Settings]\n"
                                                                "gtk-application-prefer-dark-theme=1\n";
  start();
  EXPECT_EQ(client().minimumSize(), usual);
}

/// Whether any driver for EGL has been loaded.
bool hasDriver(pid_t process) {
  return textOf("/proc/" + std::to_string(process) + "/maps").find("/libEGL_") != std::string::npos;
}

TEST_F(StartTest, WithoutGraphicsHardwareOnlyThePagesProcessLoadsADriver) {
  const fs::path nodes = "/dev/dri";
  const bool isThereHardware =
      fs::exists(nodes) && std::ranges::any_of(fs::directory_iterator(nodes), [](const auto& node) {
        return node.path().filename().string().starts_with("renderD");
      });
  start();
  EXPECT_EQ(hasDriver(client().process().id()), isThereHardware);
  const auto pages = descendants(client().process().id(), "WebKitWebProces");
  ASSERT_THAT(pages, SizeIs(1));
  EXPECT_TRUE(hasDriver(pages.front()));
}

} // namespace
} // namespace quorvel::e2e
