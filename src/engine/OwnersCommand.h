#pragma once

#include "engine/TimerFunction.h"

#include <chrono>
#include <functional>

namespace quorvel {

/// Follows one thing that the owner asked the view to do until it is done, against a page that hangs, or that
/// breaks it off by going somewhere else itself: then the page's process has to make way.
///
/// The process is asked for a sign of life again and again while it has not been done. Nothing is timed for
/// as long as the owner asks for nothing. Main thread only.
class OwnersCommand {
 public:
  /// How long a sign of life is waited for, and how soon after one the next is asked for.
  static constexpr std::chrono::milliseconds patience{3000}, interval{500};

  struct Means {
    TimerFunction startTimer;
    /// Asks the page's process for a sign of life, which is told by `answered()`.
    std::function<void()> ask;
    /// Ends the page's process and does it again on a fresh one.
    std::function<void()> insist;
  };
  explicit OwnersCommand(Means means);
  ~OwnersCommand();
  OwnersCommand(const OwnersCommand&) = delete;
  OwnersCommand& operator=(const OwnersCommand&) = delete;

  /// The view has been told to do it; what was asked for before is forgotten.
  void begin();
  /// It is done, has failed, or is not wanted any more.
  void end();
  bool isUnderWay() const { return phase_ != Phase::none; }

  /// The page's process is about to do it.
  void accepted();
  /// A load of the view has started, has been broken off, has failed, or has brought its document.
  void loadStarted();
  void loadBrokenOff();
  void loadFailed();
  void loadCommitted();
  /// The sign of life, and how the view stands at that moment: whether it loads anything, and whether it has
  /// come to where the owner wanted to without loading.
  void answered(bool isLoading, bool isDone);
  /// The page's process has ended by itself.
  void processEnded();

 private:
  enum class Phase { none, asked, accepted, started };

  void ask();
  void askLater();
  void insist();

  Means means_;
  Phase phase_ = Phase::none;
  int vainAnswers_ = 0; // signs of life in a row while nothing came of it
  sigc::connection timer_;
};

} // namespace quorvel
