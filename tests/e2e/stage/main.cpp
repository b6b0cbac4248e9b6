#include "e2e/stage/ChildProcess.h"
#include "e2e/stage/Stage.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <iostream>

namespace {

namespace fs = std::filesystem;
using namespace quorvel::e2e;

/// The tests run in a network of their own, where the service answers under its real name: so this program
/// starts itself again in there.
int runInPrivateNetwork(const Arguments& ourselves) {
  const auto folder = Stage::makeFolder();
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
                       "--"};
  command.insert(command.end(), ourselves.begin(), ourselves.end());
  ChildProcess inside(command, {{Stage::variable, folder.string()}});
  while (!inside.waitForEnd())
    continue;
  fs::remove_all(folder);
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
