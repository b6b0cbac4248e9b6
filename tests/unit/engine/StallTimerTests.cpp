#include "engine/StallTimer.h"

#include <gtest/gtest.h>

namespace quorvel {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

/// A clock that stands still until it is told to advance.
class ManualTimer {
 public:
  TimerFunction function() {
    return [this](milliseconds delay, sigc::slot<void()> task) {
      due_ = now_ + delay;
      task_ = std::move(task);
      return sigc::connection(task_);
    };
  }
  void advance(milliseconds time) {
    now_ += time;
    if (now_ >= due_ && task_)
      std::exchange(task_, {})();
  }

 private:
  milliseconds now_{0};
  milliseconds due_{0};
  sigc::slot<void()> task_;
};

struct StallTimerTest : ::testing::Test {
  ManualTimer clock;
  int stalls = 0;
  StallTimer timer{clock.function(), [this] { ++stalls; }};
};

TEST_F(StallTimerTest, NoticesThirtySecondsWithoutProgressOnce) {
  timer.restart();
  clock.advance(seconds(29));
  EXPECT_EQ(stalls, 0);
  clock.advance(seconds(1));
  EXPECT_EQ(stalls, 1);
  clock.advance(seconds(60));
  EXPECT_EQ(stalls, 1);
}

TEST_F(StallTimerTest, ProgressStartsTheWaitAnew) {
  timer.restart();
  clock.advance(seconds(29));
  timer.restart();
  clock.advance(seconds(29));
  EXPECT_EQ(stalls, 0);
  clock.advance(seconds(1));
  EXPECT_EQ(stalls, 1);
}

TEST_F(StallTimerTest, AFinishedLoadIsNotWaitedFor) {
  timer.restart();
  timer.stop();
  clock.advance(seconds(60));
  EXPECT_EQ(stalls, 0);
}

TEST_F(StallTimerTest, ATimerThatIsGoneNoticesNothing) {
  {
    StallTimer shortLived{clock.function(), [this] { ++stalls; }};
    shortLived.restart();
  }
  clock.advance(seconds(60));
  EXPECT_EQ(stalls, 0);
}

} // namespace
} // namespace quorvel
