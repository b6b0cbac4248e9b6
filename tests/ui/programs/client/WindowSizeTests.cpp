#include "programs/client/WindowSize.h"

#include "support/TemporaryFolder.h"

#include <fstream>
#include <gmock/gmock.h>
#include <sys/stat.h>

namespace quorvel {
namespace {

namespace fs = std::filesystem;

class WindowSizeTest : public ::testing::Test {
 protected:
  std::optional<WindowSize> sizeIn(const std::string& text) const {
    fs::create_directories(file.parent_path());
    std::ofstream(file) << text;
    return readWindowSize(file);
  }

  const tests::TemporaryFolder folder;
  const fs::path file = folder.path / "state" / "quorvel" / "window.ini";
};

TEST_F(WindowSizeTest, WhatIsWrittenIsRead) {
  for (const WindowSize size : {WindowSize{1400, 900}, WindowSize{1180, 801, true}}) {
    writeWindowSize(file, size);
    EXPECT_EQ(readWindowSize(file), size);
  }
}

TEST_F(WindowSizeTest, FolderAndFileAreTheUsersAlone) {
  writeWindowSize(file, {1400, 900});
  EXPECT_EQ(fs::status(file.parent_path()).permissions(), fs::perms::owner_all);
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(WindowSizeTest, ReadingMakesNothing) {
  EXPECT_EQ(readWindowSize(file), std::nullopt);
  EXPECT_TRUE(fs::is_empty(folder.path));
}

TEST_F(WindowSizeTest, WhatMakesNoSenseCountsAsMissing) {
  EXPECT_EQ(sizeIn(""), std::nullopt);
  EXPECT_EQ(sizeIn("[Window]\nWidth=1400\n"), std::nullopt);
  EXPECT_EQ(sizeIn("[Window]\nWidth=wide\nHeight=900\nMaximized=false\n"), std::nullopt);
  EXPECT_EQ(sizeIn("[Window]\nWidth=0\nHeight=900\nMaximized=false\n"), std::nullopt);
  EXPECT_EQ(sizeIn("[Window]\nWidth=-1400\nHeight=900\nMaximized=false\n"), std::nullopt);
  EXPECT_EQ(sizeIn("[Window]\nWidth=1400\nHeight=99999\nMaximized=false\n"), std::nullopt);
  EXPECT_EQ(sizeIn("[Window]\nWidth=1400\nHeight=99999999999999\nMaximized=false\n"), std::nullopt);
  EXPECT_EQ(sizeIn("\xff\xfe no line of any kind"), std::nullopt);
  EXPECT_EQ(sizeIn("[Window]\nWidth=1400\nHeight=900\nMaximized=false\n"), WindowSize(1400, 900));
}

TEST_F(WindowSizeTest, NeitherAFolderNorAPipeInTheFilesPlaceHoldsTheProgramUp) {
  fs::create_directories(file);
  EXPECT_EQ(readWindowSize(file), std::nullopt);
  writeWindowSize(file, {1400, 900});
  EXPECT_TRUE(fs::is_directory(file));
  fs::remove(file);
  ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
  EXPECT_EQ(readWindowSize(file), std::nullopt);
}

TEST_F(WindowSizeTest, TheSameSizeIsNotWrittenAgain) {
  writeWindowSize(file, {1400, 900});
  const auto before = fs::last_write_time(file) - std::chrono::hours(1);
  fs::last_write_time(file, before);
  writeWindowSize(file, {1400, 900});
  EXPECT_EQ(fs::last_write_time(file), before);
}

} // namespace
} // namespace quorvel
