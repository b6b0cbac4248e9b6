#pragma once

#include "engine/PageBrake.h"

#include <chrono>
#include <deque>
#include <optional>
#include <sigc++/sigc++.h>
#include <webkit/webkit.h>

namespace quorvel {

/// Tells whether a page says so much that the program hardly comes to anything else: the engine works off
/// whatever it has heard from a page before it lets the main loop go on, and meanwhile hears more. So that
/// this does not become many seconds' worth, such a page is heard little by little. The view has to outlive
/// the gauge.
class FloodGauge : public sigc::trackable {
 public:
  explicit FloodGauge(WebKitWebView* view);
  ~FloodGauge();
  FloodGauge(const FloodGauge&) = delete;
  FloodGauge& operator=(const FloodGauge&) = delete;

  /// Whether the main loop is being held up, or was, all in all, during the last moment.
  bool isFlooded() const;

 private:
  using Clock = std::chrono::steady_clock;

  /// One turn of the main loop: for how long the page's words made it wait, and how many they were.
  struct Turn {
    Clock::time_point at;
    Clock::duration wait{};
    int words = 0;
  };

  void noteWord();
  void noteTurn();
  /// All of the last moment's, and the one that is being waited for.
  Turn lately() const;

  WebKitWebView* view_;
  std::optional<Clock::time_point> waitsSince_; // the main loop, for its turn
  int words_ = 0;                               // heard since
  std::deque<Turn> turns_;
  PageBrake brake_;
};

} // namespace quorvel
