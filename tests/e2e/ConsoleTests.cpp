#include "e2e/stage/ClientTest.h"

namespace quorvel::e2e {
namespace {

namespace fs = std::filesystem;

/// The console in the place of the client.
class ConsoleTest : public ClientTest {
 protected:
  std::vector<std::string> files() const {
    std::vector<std::string> all;
    for (const auto& folder :
         {stage.folder() / "home", stage.config(), stage.data(), stage.cache(), stage.state()})
      for (const auto& entry : fs::recursive_directory_iterator(folder))
        all.push_back(entry.path());
    std::ranges::sort(all);
    return all;
  }
};

TEST_F(ConsoleTest, StartingItCreatesNothingOnDiskAndPrintsNothing) {
  const auto before = files();
  const auto log = stage.folder() / "client.log";
  ChildProcess console({QUORVEL_CONSOLE}, {}, log);
  const auto shown = [] { return windowTitled("Quorvel Console"); };
  ASSERT_TRUE(eventually(shown, Not(IsEmpty())));
  ASSERT_TRUE(eventually([&] { return Accessible::ofProcess(console.id()).has_value(); }));
  outputOf({"xdotool", "windowfocus", "--sync", shown(), "key", "ctrl+3", "key", "ctrl+q"});
  EXPECT_EQ(console.waitForEnd(), 0);
  EXPECT_EQ(files(), before);
  EXPECT_EQ(fs::file_size(log), 0u);
}

} // namespace
} // namespace quorvel::e2e
