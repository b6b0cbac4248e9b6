#include "e2e/stage/ClientTest.h"

#include <fstream>

namespace quorvel::e2e {
namespace {

namespace fs = std::filesystem;

/// Downloads as their owner meets them.
class DownloadTest : public ClientTest {
 protected:
  DownloadTest() {
    std::ofstream(stage.config() / "user-dirs.dirs") << "XDG_DOWNLOAD_DIR=\"$HOME/Downloads\"\n";
  }

  void startFrom(const std::string& page) {
    stage.servePage("agent.html", page);
    start();
    client().clickPage();
  }
  std::vector<std::string> files() const {
    std::vector<std::string> names;
    std::error_code notYet;
    for (const auto& entry : fs::directory_iterator(stage.folder() / "home" / "Downloads", notYet))
      names.push_back(entry.path().filename());
    return names;
  }
  /// What is said of downloads.
  std::vector<std::string> said() { return client().namesIn("Quorvel", ATSPI_ROLE_STATUS_BAR); }
};

TEST_F(DownloadTest, IsHeardOfUntilAWhileAfterItsEnd) {
  startFrom(linkTo("/download?name=brief.txt"));
  EXPECT_TRUE(eventually([&] { return said(); }, ElementsAre("brief.txt is downloaded")));
  EXPECT_THAT(client().namesIn("Quorvel", ATSPI_ROLE_PUSH_BUTTON), Contains("Show in folder: brief.txt"));
  EXPECT_EQ(client().windows().size(), 1u);
  EXPECT_TRUE(eventually([&] { return said(); }, IsEmpty()));
  EXPECT_THAT(files(), ElementsAre("brief.txt"));
}

TEST_F(DownloadTest, IsCancelledWithoutATrace) {
  startFrom(linkTo("/download?name=long.bin&seconds=3600"));
  EXPECT_TRUE(eventually([&] { return said(); }, ElementsAre("Downloading long.bin")));
  client().press("Cancel long.bin");
  EXPECT_TRUE(eventually([&] { return said(); }, IsEmpty()));
  EXPECT_TRUE(eventually([&] { return files(); }, IsEmpty()));
}

TEST_F(DownloadTest, LeavesNothingHalfWrittenWhenTheProgramIsQuit) {
  startFrom(linkTo("/download?name=long.bin&seconds=3600"));
  EXPECT_TRUE(eventually([&] { return said(); }, ElementsAre("Downloading long.bin")));
  EXPECT_TRUE(eventually([&] { return files(); }, Contains("long.bin")));
  quit();
  EXPECT_TRUE(eventually([&] { return files(); }, IsEmpty()));
}

} // namespace
} // namespace quorvel::e2e
