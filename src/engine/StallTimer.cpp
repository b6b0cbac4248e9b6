#include "engine/StallTimer.h"

#include <glibmm/main.h>
#include <utility>

namespace quorvel {

TimerFunction mainLoopTimer() {
  return [](std::chrono::milliseconds delay, sigc::slot<void()> task) {
    return Glib::signal_timeout().connect(
        [task = std::move(task)] {
          task();
          return false;
        },
        static_cast<unsigned>(delay.count()));
  };
}

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
