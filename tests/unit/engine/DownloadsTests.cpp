#include "engine/downloads.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace quorvel {
namespace {

namespace fs = std::filesystem;

struct ReserveFileTest : ::testing::Test {
  std::string reserved(const std::string& name) {
    const auto path = reserveFile(folder, name);
    EXPECT_TRUE(path && fs::exists(*path)) << name;
    return path ? fs::path(*path).lexically_relative(folder).string() : "";
  }

  const tests::TemporaryFolder temporary;
  const fs::path folder = temporary.path;
};

TEST_F(ReserveFileTest, AFreeNameIsUsedAsItIs) {
  EXPECT_EQ(reserved("invoice.pdf"), "invoice.pdf");
}

TEST_F(ReserveFileTest, ATakenNameIsCountedUpAndItsFileLeftAlone) {
  std::ofstream(folder / "invoice.pdf") << "the user's own";
  EXPECT_EQ(reserved("invoice.pdf"), "invoice (1).pdf");
  EXPECT_EQ(reserved("invoice.pdf"), "invoice (2).pdf");
  EXPECT_EQ(fs::file_size(folder / "invoice.pdf"), std::string("the user's own").size());
}

TEST_F(ReserveFileTest, ANameCannotLeaveTheFolder) {
  EXPECT_EQ(reserved("../../escape.txt"), "escape.txt");
  EXPECT_EQ(reserved("/etc/passwd"), "passwd");
}

TEST_F(ReserveFileTest, ANameOfNothingButFoldersBecomesDownload) {
  EXPECT_EQ(reserved("../.."), "download");
  EXPECT_EQ(reserved(""), "download (1)");
}

TEST_F(ReserveFileTest, AMissingFolderIsMade) {
  EXPECT_TRUE(reserveFile((folder / "not" / "yet").string(), "invoice.pdf"));
}

TEST_F(ReserveFileTest, AFolderThatCannotBeMadeGivesNothing) {
  std::ofstream(folder / "file") << "in the way";
  EXPECT_FALSE(reserveFile((folder / "file").string(), "invoice.pdf"));
}

} // namespace
} // namespace quorvel
