#include "e2e/stage/ChildProcess.h"
#include "e2e/stage/Stage.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <iostream>
#include <set>

namespace {

namespace fs = std::filesystem;
using namespace quorvel::e2e;

std::set<fs::path> rootFolder() {
  return std::set<fs::path>(fs::directory_iterator("/"), fs::directory_iterator());
}

/// The tests run in a network of their own, where the service answers under its real name and nothing can be
/// written but what is the test's own: so this program starts itself again in there.
int runInPrivateNetwork(const Arguments& ourselves) {
  const auto before = rootFolder();
  const auto folder = Stage::makeFolder();
  fs::create_directories(QUORVEL_FAILURES);
  Arguments command = {QUORVEL_SOURCE_DIR "/demo/private-network",
                       "--service",
                       QUORVEL_DEMO_SERVICE,
                       "--pages",
                       folder / "pages",
                       "--pages",
                       QUORVEL_SOURCE_DIR "/demo/pages",
                       "--log",
                       folder / "requests.log",
                       "--own-displays",
                       "--ordinary-user",
                       "--writable",
                       folder,
                       "--writable",
                       QUORVEL_FAILURES,
                       "--"};
  command.insert(command.end(), ourselves.begin(), ourselves.end());
  ChildProcess inside(command, {{Stage::variable, folder.string()}, {"TMPDIR", folder / "tmp"}});
  while (!inside.waitForEnd())
    continue;
  fs::remove_all(folder);
  if (rootFolder() != before) {
    std::cerr << "The tests have changed what is in the root folder.\n";
    return EXIT_FAILURE;
  }
  return *inside.status();
}

} // namespace

int main(int argc, char** argv) {
  const Arguments ourselves(argv, argv + argc);
  testing::InitGoogleTest(&argc, argv);
  if (testing::GTEST_FLAG(list_tests) || Stage::isSet())
    return RUN_ALL_TESTS();
  return runInPrivateNetwork(ourselves);
}
