#include "startup/lastWords.h"

#include <csignal>
#include <cstdlib>
#include <glib.h>
#include <gtest/gtest.h>
#include <iostream>

namespace quorvel {
namespace {

void show(const std::string& sentence) {
  std::cerr << "shown: " << sentence << std::endl;
}

void fail(const char* message) {
  explainFatalErrors(&show);
  g_error("%s", message);
}

/// As it would without us, leaving a core dump where the system keeps any.
const ::testing::KilledBySignal asEver(SIGTRAP);

TEST(LastWordsDeathTest, AnEngineThatCannotStartItsProcessesIsExplained) {
  const auto* const words =
      "^Quorvel has to stop: the web engine cannot start its processes here \\(.+\\)\\. "
      "It needs bubblewrap, and a system that lets a program make namespaces\\.\n"
      "shown: .+ namespaces\\.\n$";
  for (const auto* message :
       {"Failed to fully launch dbus-proxy: Child process exited with code 1",
        "Failed to start dbus proxy: No such file", "Unable to spawn a new child process: No"})
    EXPECT_EXIT(fail(message), asEver, words) << message;
}

TEST(LastWordsDeathTest, AProcessThatEndsWhileItStartsIsNotCalledALackOfBubblewrap) {
  const auto* const words =
      "^Quorvel has to stop: a process of the web engine ended while it was starting \\(.+\\)\\. "
      "Where that happens every time, the system does not let bubblewrap make the sandbox\\.\n"
      "shown: .+ sandbox\\.\n$";
  for (const auto* message :
       {"readPIDFromPeer: Unexpected short read from PID socket.", "Failed to read pid from child process",
        "Connection: failed to receive credentials: Expecting to read a single byte"})
    EXPECT_EXIT(fail(message), asEver, words) << message;
}

TEST(LastWordsDeathTest, AnyOtherFatalErrorSpeaksForItself) {
  EXPECT_EXIT(fail("The display has gone"), asEver,
              "^Quorvel has to stop: a fatal error occurred \\(The display has gone\\)\\.\nshown: .+");
}

TEST(LastWordsDeathTest, LesserMessagesEndNothing) {
  const auto warn = [] {
    explainFatalErrors(&show);
    g_warning("only a warning");
    std::_Exit(0);
  };
  EXPECT_EXIT(warn(), ::testing::ExitedWithCode(0), "only a warning");
}

TEST(LastWords, OnlyAProgramThatWasStartedToShowThemShowsThem) {
  char name[] = "quorvel", option[] = "--show-last-words", words[] = "It ends.";
  char* given[] = {name, option, words};
  EXPECT_EQ(sentenceToShow(3, given), "It ends.");
  EXPECT_EQ(sentenceToShow(2, given), std::nullopt);
  EXPECT_EQ(sentenceToShow(1, given), std::nullopt);
}

} // namespace
} // namespace quorvel
