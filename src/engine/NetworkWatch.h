#pragma once

#include "engine/TimerFunction.h"

#include <chrono>
#include <functional>
#include <map>
#include <sys/types.h>
#include <vector>
#include <webkit/webkit.h>

namespace quorvel {

/// Sees to it that the process that asks the network for all pages does not keep the owner from what he has
/// asked for: the engine itself would wait for ever, but starts another one when it ends.
///
/// One that has been stopped is ended. One that does not rest for a moment is busy with the page on screen,
/// which makes way; if it goes on like that it is ended, too, unless a download depends on it. One that rests
/// is waiting for a server, and is left alone. Main thread only.
class NetworkWatch {
 public:
  /// How long it has before anybody looks at it, and over what time it is seen whether it rests.
  static constexpr std::chrono::milliseconds patience{1500}, look{1100};

  struct Owner {
    std::function<bool()> isWaiting;     ///< for what he has asked for
    std::function<bool()> isDownloading; ///< anything at all
    /// Ends the page's process and does on a fresh one what he has asked for.
    std::function<void()> replacePage;
  };
  NetworkWatch(TimerFunction startTimer, Owner owner);
  ~NetworkWatch();
  NetworkWatch(const NetworkWatch&) = delete;
  NetworkWatch& operator=(const NetworkWatch&) = delete;

  /// The owner is about to ask for something. Who asks again while he waits waits no longer for that.
  void commandGiven();
  /// The page's process has made way for it, for whatever reason.
  void pageReplaced();
  /// Whether a load has failed because that process ended under it. There is another one by now.
  static bool hasLost(const GError* error);

 private:
  using Clock = std::chrono::steady_clock;

  /// Who makes way next if that process does not rest.
  enum class Next { page, network, nobody };

  void start(std::chrono::milliseconds delay, void (NetworkWatch::*task)());
  void endIfStopped();
  void beginLook();
  void endLook();
  std::vector<pid_t> restless() const;

  TimerFunction startTimer_;
  Owner owner_;
  Next next_ = Next::page;
  Clock::time_point lookedAt_;
  std::map<pid_t, std::chrono::nanoseconds> work_; // that each of them had done by then
  sigc::connection timer_;
};

} // namespace quorvel
