#pragma once

#include "engine/TimerFunction.h"

#include <chrono>
#include <functional>
#include <webkit/webkit.h>

namespace quorvel {

/// Ends the process that asks the network for all pages where it has been stopped and the owner waits for it.
/// The engine itself would wait for ever, but starts another one when it ends. Whether one that runs is hung
/// or merely slow nobody can tell, and downloads depend on it. Main thread only.
class NetworkWatch {
 public:
  /// How long that process may be stopped.
  static constexpr std::chrono::milliseconds patience{2500};

  NetworkWatch(TimerFunction startTimer, std::function<bool()> isWaitedFor);
  ~NetworkWatch();
  NetworkWatch(const NetworkWatch&) = delete;
  NetworkWatch& operator=(const NetworkWatch&) = delete;

  /// The owner has just asked for something.
  void restart();
  /// Whether a load has failed because that process ended under it. There is another one by now.
  static bool hasLost(const GError* error);

 private:
  void endIfStopped() const;

  TimerFunction startTimer_;
  std::function<bool()> isWaitedFor_;
  sigc::connection timer_;
};

} // namespace quorvel
