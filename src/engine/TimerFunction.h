#pragma once

#include <chrono>
#include <functional>
#include <sigc++/sigc++.h>

namespace quorvel {

/// Calls `task` once after the delay, unless the returned connection is disconnected before.
using TimerFunction =
    std::function<sigc::connection(std::chrono::milliseconds delay, sigc::slot<void()> task)>;

/// The main loop's own timer.
TimerFunction mainLoopTimer();

} // namespace quorvel
