#pragma once

#include <chrono>
#include <optional>
#include <sigc++/sigc++.h>
#include <webkit/webkit.h>

namespace quorvel {

/// Tells whether a page says so much that the program comes to nothing else: the engine works off whatever it
/// has heard from a page, which may be seconds' worth, before it lets the main loop go on. The view has to
/// outlive the gauge.
class FloodGauge : public sigc::trackable {
 public:
  explicit FloodGauge(WebKitWebView* view);
  ~FloodGauge();
  FloodGauge(const FloodGauge&) = delete;
  FloodGauge& operator=(const FloodGauge&) = delete;

  /// Whether the main loop is being held up, or was when it was last looked at, a moment ago.
  bool isFlooded() const;

 private:
  using Clock = std::chrono::steady_clock;

  void noteWord();
  void noteTurn();

  WebKitWebView* view_;
  std::optional<Clock::time_point> waitsSince_; // the main loop, for its turn
  Clock::duration lastWait_{};
  Clock::time_point lastTurn_;
};

} // namespace quorvel
