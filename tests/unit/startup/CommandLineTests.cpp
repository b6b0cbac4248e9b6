#include "startup/commandLine.h"

#include <gmock/gmock.h>

namespace quorvel {
namespace {

using ::testing::HasSubstr;

constexpr ProgramName program{"com.quorvel.Test", "Quorvel Test", "quorvel-test", "A program for tests."};

/// What the program objects with; nothing where it does not.
std::string objectionTo(const std::vector<std::string>& arguments) {
  const auto answer = answerTo(program, arguments);
  return answer && answer->status == 2 ? answer->text : "";
}

TEST(CommandLine, WithoutArgumentsAProgramStarts) {
  EXPECT_FALSE(answerTo(program, {}));
}

TEST(CommandLine, TheMessageBusMayStartAProgram) {
  EXPECT_FALSE(answerTo(program, {"--gapplication-service"}));
}

TEST(CommandLine, TheVersionIsToldWithTheName) {
  const auto answer = answerTo(program, {"--version"});
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->status, 0);
  EXPECT_EQ(answer->text, "Quorvel Test " QUORVEL_VERSION "\n");
}

TEST(CommandLine, TheHelpNamesTheCommandWhatItIsAndEachOption) {
  for (const auto* asked : {"--help", "-h"}) {
    const auto answer = answerTo(program, {asked});
    ASSERT_TRUE(answer) << asked;
    EXPECT_EQ(answer->status, 0);
    EXPECT_THAT(answer->text, HasSubstr("Usage: quorvel-test "));
    EXPECT_THAT(answer->text, HasSubstr("A program for tests."));
    for (const auto* option : {"--help", "-h", "--version"})
      EXPECT_THAT(answer->text, HasSubstr(option));
  }
}

TEST(CommandLine, WhatIsNoOptionIsToldInOneSentence) {
  EXPECT_EQ(objectionTo({"page.html"}),
            "quorvel-test: \"page.html\" is not an option; quorvel-test --help lists them.\n");
  EXPECT_EQ(objectionTo({""}), "quorvel-test: \"\" is not an option; quorvel-test --help lists them.\n");
}

TEST(CommandLine, AnUnknownOptionIsToldInOneSentence) {
  for (const std::string option : {"--verbose", "-v", "--version=2", "--", "-"})
    EXPECT_EQ(objectionTo({option}), "quorvel-test: \"" + option +
                                         "\" is no option that it knows; quorvel-test --help lists them.\n");
}

TEST(CommandLine, AnArgumentBesideAGoodOptionIsObjectedToInItsTurn) {
  EXPECT_THAT(objectionTo({"--gapplication-service", "page.html"}), HasSubstr("page.html"));
  EXPECT_EQ(objectionTo({"--version", "page.html"}), "") << "the version came first";
}

TEST(CommandLine, AnArgumentInNoEncodingIsRepeatedAsItCame) {
  EXPECT_THAT(objectionTo({"\xff\xfe"}), HasSubstr("\"\xff\xfe\""));
}

} // namespace
} // namespace quorvel
