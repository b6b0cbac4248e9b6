#include "e2e/stage/ChildProcess.h"
#include "e2e/stage/Stage.h"
#include "support/eventually.h"
#include "torture/torture.h"

#include <csignal>
#include <fstream>

namespace quorvel::e2e {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class PreferenceTorture : public testing::Test {
 protected:
  PreferenceTorture() {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << whatStays << flipped << "=false\r\n";
  }
  ~PreferenceTorture() override { fs::remove_all(file.parent_path()); }

  std::string written() const {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  auto filesInFolder() const { return std::distance(fs::directory_iterator(file.parent_path()), {}); }
  Arguments flips(const std::string& times) const {
    return {QUORVEL_PREFERENCES_PEER, file, "flip", flipped, times};
  }

  /// Kills a program that does nothing but flip, so many microseconds after a flip of it was on disk.
  void killWhileItFlips(unsigned microseconds) const {
    const auto before = fs::last_write_time(file);
    const ChildProcess program(flips("1000000"), {}, file.parent_path().string() + ".log");
    EXPECT_TRUE(quorvel::tests::eventually([&] { return fs::last_write_time(file) != before; }));
    g_usleep(microseconds); // no waiting for anything: each kill falls into another moment
    program.signal(SIGKILL);
  }

  const std::string flipped = "Quorvel.showInspector";
  const std::string whatStays =
      "# mine\r\n[Preferences]\r\nQuorvel.requireApprovalForSpend=false\r\n"
      "Quorvel.requireApprovalForBookings=true\r\nQuorvel.dailyBriefEnabled=false\r\n"
      "unknown = 7\r\n";
  const fs::path file = fs::path(std::getenv(Stage::variable)) / "tmp" / "preferences" / "preferences.ini";
};

TEST_F(PreferenceTorture, NoKillWhileAFlipIsWrittenLosesAKeyOrLeavesAFile) {
  const int kills = rounds(500);
  int inTheMiddle = 0, lost = 0;
  for (int i = 0; i < kills; ++i) {
    killWhileItFlips(static_cast<unsigned>(i) * 37 % 5'000);
    inTheMiddle += filesInFolder() > 1;
    const auto text = written();
    lost += text != whatStays + flipped + "=false\r\n" && text != whatStays + flipped + "=true\r\n";
    EXPECT_LE(filesInFolder(), 2) << "each start removes what the one before left";
  }
  EXPECT_EQ(outputOf(flips("1")).empty(), false);
  figure(kills, " kills, ", inTheMiddle, " of them in the middle of a write: ", lost, " files damaged, ",
         filesInFolder() - 1, " left behind");
  EXPECT_EQ(lost, 0);
  EXPECT_EQ(filesInFolder(), 1);
}

} // namespace
} // namespace quorvel::e2e
