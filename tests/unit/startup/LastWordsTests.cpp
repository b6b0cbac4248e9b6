#include "startup/lastWords.h"

#include <cstdlib>
#include <glib.h>
#include <gtest/gtest.h>

namespace quorvel {
namespace {

TEST(EngineFailureDeathTest, AnEngineThatCannotStartEndsTheProgramWithOneSentence) {
  const auto fail = [] {
    explainEngineFailure();
    g_error("Failed to fully launch dbus-proxy");
  };
  EXPECT_EXIT(
      fail(), ::testing::ExitedWithCode(1),
      "^Quorvel has to stop: the web engine cannot start here \\(Failed to fully launch dbus-proxy\\)\\. "
      "It needs bubblewrap, and a system that lets a program make namespaces\\.\n$");
}

TEST(EngineFailureDeathTest, LesserMessagesEndNothing) {
  const auto warn = [] {
    explainEngineFailure();
    g_warning("only a warning");
    std::_Exit(0);
  };
  EXPECT_EXIT(warn(), ::testing::ExitedWithCode(0), "only a warning");
}

} // namespace
} // namespace quorvel
