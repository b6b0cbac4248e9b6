#include "e2e/stage/ChildProcess.h"
#include "e2e/stage/SessionBus.h"
#include "e2e/stage/Stage.h"
#include "support/DisplayLease.h"
#include "support/TemporaryFolder.h"

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
  const quorvel::tests::DisplayLease display;
  const quorvel::tests::TemporaryFolder temporary;
  const auto folder = temporary.path;
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
                       "--ordinary-user",
                       "--writable",
                       folder,
                       "--writable",
                       QUORVEL_FAILURES,
                       "--"};
  command.insert(command.end(), ourselves.begin(), ourselves.end());
  for (const auto* each : {"pages", "network"})
    fs::create_directory(folder / each);
  ChildProcess inside(command, {{Stage::variable, folder}, {"TMPDIR", folder / "network"}});
  while (!inside.waitForEnd())
    continue;
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
  if (testing::GTEST_FLAG(list_tests))
    return RUN_ALL_TESTS();
  if (const char* folder = std::getenv(Stage::variable)) {
    const SessionBus bus(fs::path(folder) / "bus");
    return RUN_ALL_TESTS();
  }
  return runInPrivateNetwork(ourselves);
}
