#pragma once

#include "engine/TimerFunction.h"

#include <chrono>

namespace quorvel {

/// Notices a load that has stopped making progress. Main thread only; forgets its timer when it goes.
class StallTimer {
 public:
  static constexpr std::chrono::seconds limit{30};

  /// `onStall` is called once when `limit` has passed since the last `restart()`.
  StallTimer(TimerFunction startTimer, sigc::slot<void()> onStall);
  ~StallTimer();
  StallTimer(const StallTimer&) = delete;
  StallTimer& operator=(const StallTimer&) = delete;

  /// A load began, or made progress.
  void restart();
  /// Nothing is loading any more.
  void stop();

 private:
  TimerFunction startTimer_;
  sigc::slot<void()> onStall_;
  sigc::connection pending_;
};

} // namespace quorvel
