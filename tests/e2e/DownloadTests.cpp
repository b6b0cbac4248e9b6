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

  void startFrom(const std::string& page, const Arguments& through = {}) {
    stage.servePage("agent.html", page);
    start({}, through);
    client().clickPage();
  }
  /// Also where the program's folder is not what it is outside.
  std::vector<std::string> files() {
    const auto root = fs::path("/proc") / std::to_string(client().process().id()) / "root";
    std::vector<std::string> names;
    std::error_code notYet;
    for (const auto& entry : fs::directory_iterator(root / folder.relative_path(), notYet))
      names.push_back(entry.path().filename());
    return names;
  }
  /// What is said of downloads: how each status begins.
  std::vector<std::string> said() {
    std::vector<std::string> words;
    const auto window = client().window();
    for (const auto& status : window ? window->all() : std::vector<Accessible>()) {
      if (status.role() != ATSPI_ROLE_STATUS_BAR)
        continue;
      const auto parts = status.all();
      const auto first =
          std::ranges::find(parts, ATSPI_ROLE_LABEL, [](const auto& part) { return part.role(); });
      words.push_back(first == parts.end() ? "" : first->name());
    }
    return words;
  }

  const fs::path folder = stage.folder() / "home" / "Downloads";
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
  EXPECT_TRUE(eventually([&] { return fs::is_empty(folder); }));
}

/// A download folder that takes no file, or not the whole of one, and what is in it before.
struct Unwritable {
  const char* lack;
  std::vector<std::string> files = {};
};

class UnwritableFolderTest : public DownloadTest, public testing::WithParamInterface<Unwritable> {};

TEST_P(UnwritableFolderTest, IsSaidToKeepNoFileAndEverythingElseGoesOn) {
  fs::create_directory(folder);
  stage.servePage("large.html", std::string(1'000'000, 'x'));
  startFrom(linkTo("/large.html", "download"), lacking(GetParam().lack, {folder}));
  EXPECT_TRUE(eventually([&] { return said(); }, ElementsAre("large.html could not be downloaded")));
  EXPECT_THAT(client().namesIn("Quorvel", ATSPI_ROLE_PUSH_BUTTON), Not(Contains(HasSubstr("large.html"))));
  EXPECT_TRUE(eventually([&] { return files(); }, ElementsAreArray(GetParam().files)));
  EXPECT_FALSE(fs::exists(stage.data() / "quorvel" / "downloads-under-way"));
  client().press("Pricing");
  waitForPage("/pricing.html");
  quit();
}

INSTANTIATE_TEST_SUITE_P(Disk, UnwritableFolderTest,
                         testing::Values(Unwritable{"read-only"}, Unwritable{"small-disk"},
                                         Unwritable{"full-disk", {"everything"}}),
                         [](const auto& disk) { return std::to_string(disk.index); });

} // namespace
} // namespace quorvel::e2e
