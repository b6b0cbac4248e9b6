#include "engine/StallTimer.h"

#include <utility>

namespace quorvel {

StallTimer::StallTimer(TimerFunction startTimer, sigc::slot<void()> onStall)
    : startTimer_(std::move(startTimer)), onStall_(std::move(onStall)) {}

StallTimer::~StallTimer() {
  stop();
}

void StallTimer::restart() {
  stop();
  pending_ = startTimer_(limit, onStall_);
}

void StallTimer::stop() {
  pending_.disconnect();
}

} // namespace quorvel
