#include "engine/reserveFile.h"
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

TEST_F(ReserveFileTest, ANameHidesNothing) {
  EXPECT_EQ(safeFileName(".bash_profile"), "bash_profile");
  EXPECT_EQ(safeFileName("... .config"), "config");
  EXPECT_EQ(safeFileName("in\nvoice\x07\x1b[2J\x7f.pdf"), "invoice[2J.pdf");
  EXPECT_EQ(safeFileName("invoice\u202efdp.exe"), "invoicefdp.exe") << "a name that reads backwards";
  EXPECT_EQ(safeFileName("a\u2066b\u200fc\u200bd\u2028e\ufeff.txt"), "abcde.txt");
  EXPECT_EQ(safeFileName("\u202e.profile"), "profile") << "a dot that comes first when the rest has gone";
  EXPECT_EQ(safeFileName("\u202e/.."), "download");
  EXPECT_EQ(safeFileName("Rechnung für Jörg.pdf"), "Rechnung für Jörg.pdf");
  EXPECT_EQ(safeFileName("archive.tar.gz"), "archive.tar.gz");
}

TEST_F(ReserveFileTest, NoLetterThatIsNotSeenStaysInAName) {
  for (const std::string unseen :
       {"\u00ad", "\u034f", "\u061c", "\u115f", "\u1160", "\u17b4", "\u180b", "\u180e", "\u200d", "\u2060",
        "\u2800", "\u3164", "\ufe0f", "\uffa0", "\U000e0041", "\U000e0100"})
    EXPECT_EQ(safeFileName("in" + unseen + "voice" + unseen + ".pdf"), "invoice.pdf");
}

TEST_F(ReserveFileTest, NoSpaceMovesAnExtensionOutOfSight) {
  EXPECT_EQ(safeFileName("invoice.pdf" + std::string(150, ' ') + ".exe"), "invoice.pdf .exe");
  EXPECT_EQ(safeFileName("a\u00a0\u2003\u3000 b.txt"), "a b.txt");
  EXPECT_EQ(safeFileName("\u3000.profile"), "profile");
  EXPECT_EQ(safeFileName("invoice.pdf. . ."), "invoice.pdf");
  EXPECT_EQ(safeFileName("\u00a0 ."), "download");
}

TEST_F(ReserveFileTest, TheFileThatTheEngineWritesToIsFreeToo) {
  std::ofstream(folder / "invoice.pdf.wkdownload") << "the user's own";
  EXPECT_EQ(reserved("invoice.pdf"), "invoice (1).pdf");
  EXPECT_EQ(reserved("letter.txt.wkdownload"), "letter.txt") << "another download's";
  EXPECT_EQ(safeFileName("letter.txt.wkdownload. .wkdownload."), "letter.txt");
  EXPECT_EQ(reserved(".wkdownload"), "wkdownload");
}

TEST_F(ReserveFileTest, ALinkThatLeadsNowhereIsNoFreeName) {
  fs::create_symlink(folder / "elsewhere", folder / "invoice.pdf");
  EXPECT_EQ(reserved("invoice.pdf"), "invoice (1).pdf");
  EXPECT_FALSE(fs::exists(folder / "elsewhere"));
}

TEST_F(ReserveFileTest, ANameIsAtMost200BytesLongWithItsExtension) {
  for (const std::string letter : {"x", "ä", "€", "😀"}) {
    std::string stem;
    for (int i = 0; i < 300; ++i)
      stem += letter;
    const auto name = safeFileName(stem + ".pdf");
    EXPECT_LE(name.size(), 200u);
    EXPECT_GE(name.size(), 196u);
    EXPECT_TRUE(name.ends_with(letter + ".pdf")) << name;
    EXPECT_EQ(reserved(stem + ".pdf"), name);
    const auto copy = reserved(stem + ".pdf");
    EXPECT_LE(copy.size(), 200u);
    EXPECT_TRUE(copy.ends_with(letter + " (1).pdf")) << copy;
  }
  EXPECT_EQ(safeFileName("x." + std::string(300, 'y')).size(), 200u);
  EXPECT_LE(safeFileName(std::string(300, '\xff')).size(), 200u);
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
