#pragma once

#include "engine/TimerFunction.h"

#include <chrono>
#include <functional>
#include <string>
#include <webkit/webkit.h>

namespace quorvel {

/// The engine's own page about a load that failed. The engine first asks another process about it, so it may
/// come after a load that the view is told of meanwhile, or in the middle of that, and then nothing more is
/// heard of either. What the owner asks for meanwhile waits for it. The view has to outlive this.
class ErrorPage {
 public:
  /// How long it is waited for; it comes within some milliseconds, or not at all.
  static constexpr std::chrono::milliseconds patience{1000};

  ErrorPage(WebKitWebView* view, TimerFunction startTimer);
  ~ErrorPage();
  ErrorPage(const ErrorPage&) = delete;
  ErrorPage& operator=(const ErrorPage&) = delete;

  /// A load of this address has failed, and nobody keeps the engine from showing its page.
  void expect(const std::string& address);
  /// Does this now, or as soon as no page is expected; what waited before is forgotten.
  void letPass(std::function<void()> command);

 private:
  void noteEvent(WebKitLoadEvent event);
  void release();

  enum class State { none, expected, committed };

  WebKitWebView* view_;
  TimerFunction startTimer_;
  State state_ = State::none;
  std::string address_;
  std::function<void()> command_;
  sigc::connection timer_;
};

} // namespace quorvel
