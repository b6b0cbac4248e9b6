#include "engine/OwnersCommand.h"

#include <gtest/gtest.h>

namespace quorvel {
namespace {

using std::chrono::milliseconds;

/// A command whose timer goes off by hand.
struct OwnersCommandTest : ::testing::Test {
  sigc::slot<void()> task;
  milliseconds delay{0};
  int questions = 0, insistences = 0;
  OwnersCommand command{{[this](milliseconds time, sigc::slot<void()> later) {
                           delay = time;
                           task = std::move(later);
                           return sigc::connection(task);
                         },
                         [this] { ++questions; }, [this] { ++insistences; }}};

  bool isTimed() const { return !task.empty(); }
  void letTimePass(milliseconds time) {
    ASSERT_EQ(delay, time);
    std::exchange(task, {})();
  }
};

TEST_F(OwnersCommandTest, NothingIsTimedOrAskedBeforeTheOwnerAsks) {
  command.loadStarted();
  command.loadBrokenOff();
  command.answered(false, false);
  command.processEnded();
  EXPECT_FALSE(command.isUnderWay());
  EXPECT_FALSE(isTimed());
  EXPECT_EQ(questions, 0);
  EXPECT_EQ(insistences, 0);
}

TEST_F(OwnersCommandTest, AProcessThatGivesNoSignOfLifeMakesWayAfterItsPatience) {
  command.begin();
  EXPECT_EQ(questions, 1);
  EXPECT_EQ(insistences, 0);
  letTimePass(OwnersCommand::patience);
  EXPECT_EQ(insistences, 1);
  EXPECT_FALSE(command.isUnderWay());
  EXPECT_FALSE(isTimed());
}

TEST_F(OwnersCommandTest, AProcessThatLivesIsAskedAgainUntilItIsDone) {
  command.begin();
  command.accepted();
  command.loadStarted();
  for (int i = 0; i < 70; ++i) {
    command.answered(true, false);
    letTimePass(OwnersCommand::interval);
  }
  EXPECT_EQ(questions, 71);
  EXPECT_EQ(insistences, 0);
  command.loadCommitted();
  EXPECT_FALSE(command.isUnderWay());
  EXPECT_FALSE(isTimed());
}

TEST_F(OwnersCommandTest, AHangThatBeginsLaterIsNoticedToo) {
  command.begin();
  command.accepted();
  command.loadStarted();
  command.answered(true, false);
  letTimePass(OwnersCommand::interval);
  letTimePass(OwnersCommand::patience);
  EXPECT_EQ(insistences, 1);
}

TEST_F(OwnersCommandTest, ALoadThatThePageBreaksOffIsInsistedOn) {
  command.begin();
  command.accepted();
  command.loadStarted();
  command.loadBrokenOff();
  EXPECT_EQ(insistences, 1);
}

TEST_F(OwnersCommandTest, ACommandThatCameToNothingAfterItWasAcceptedIsInsistedOnWhateverThePageLoads) {
  command.begin();
  command.accepted();
  for (auto time = OwnersCommand::interval; time < OwnersCommand::patience; time += OwnersCommand::interval) {
    command.answered(true, false);
    letTimePass(OwnersCommand::interval);
    EXPECT_EQ(insistences, 0) << "its load may begin late";
  }
  command.answered(false, false);
  EXPECT_EQ(insistences, 1);
}

TEST_F(OwnersCommandTest, ALoadThatBeginsALittleLateIsWaitedFor) {
  command.begin();
  command.accepted();
  for (auto time = OwnersCommand::interval; time < OwnersCommand::patience; time += OwnersCommand::interval) {
    command.answered(true, false);
    letTimePass(OwnersCommand::interval);
  }
  command.loadStarted();
  command.answered(true, false);
  letTimePass(OwnersCommand::interval);
  EXPECT_EQ(insistences, 0);
}

TEST_F(OwnersCommandTest, ACommandThatNoProcessAcceptsIsInsistedOnWhateverThePageLoads) {
  command.begin();
  for (auto time = OwnersCommand::interval; time < OwnersCommand::patience; time += OwnersCommand::interval) {
    command.answered(true, false);
    letTimePass(OwnersCommand::interval);
  }
  command.answered(true, false);
  EXPECT_EQ(insistences, 1);
}

TEST_F(OwnersCommandTest, ACommandThatLoadsNothingIsDoneWhenItIsThere) {
  command.begin();
  command.answered(false, true);
  EXPECT_FALSE(command.isUnderWay());
  EXPECT_EQ(insistences, 0);
}

TEST_F(OwnersCommandTest, WhatBecomesOfThePagesOwnLoadsDoesNotMatter) {
  command.begin();
  command.loadStarted();
  command.loadBrokenOff();
  command.loadFailed();
  command.loadCommitted();
  EXPECT_TRUE(command.isUnderWay());
  command.accepted();
  command.loadBrokenOff();
  command.loadCommitted();
  EXPECT_TRUE(command.isUnderWay());
  EXPECT_EQ(insistences, 0);
}

TEST_F(OwnersCommandTest, ALoadThatFailsByItselfIsDone) {
  command.begin();
  command.accepted();
  command.loadStarted();
  command.loadFailed();
  EXPECT_FALSE(command.isUnderWay());
  EXPECT_EQ(insistences, 0);
}

TEST_F(OwnersCommandTest, AProcessThatEndsUnderItIsInsistedOnOnce) {
  command.begin();
  command.processEnded();
  command.processEnded();
  EXPECT_EQ(insistences, 1);
}

TEST_F(OwnersCommandTest, ANewCommandTakesThePlaceOfTheOneBefore) {
  command.begin();
  command.accepted();
  command.loadStarted();
  command.begin();
  command.loadBrokenOff();
  EXPECT_TRUE(command.isUnderWay()) << "that was the load of the first";
  EXPECT_EQ(insistences, 0);
}

TEST_F(OwnersCommandTest, ACommandThatIsGivenUpIsNotTimed) {
  command.begin();
  command.end();
  EXPECT_FALSE(isTimed());
  command.answered(true, false);
  EXPECT_FALSE(isTimed());
}

} // namespace
} // namespace quorvel
