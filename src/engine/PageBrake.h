#pragma once

#include <chrono>
#include <vector>

namespace quorvel {

/// Makes the pages' processes wait while the program works off what it has heard from them. What somebody
/// else has stopped stays as it is. A process that is waiting when the program ends is ended by its sandbox.
class PageBrake {
 public:
  PageBrake() = default;
  ~PageBrake();
  PageBrake(const PageBrake&) = delete;
  PageBrake& operator=(const PageBrake&) = delete;

  /// They wait from now on, and go on.
  void hold();
  void release();

 private:
  using Clock = std::chrono::steady_clock;

  void lookForPages();
  void forgetPages();

  std::vector<int> pages_; // file descriptors, each of which means one process, whatever becomes of it
  Clock::time_point lookedAt_;
  bool isHeld_ = false;
};

} // namespace quorvel
