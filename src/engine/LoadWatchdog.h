#pragma once

#include "engine/GObjectPointer.h"
#include "engine/StallTimer.h"

#include <functional>
#include <string>
#include <webkit/webkit.h>

namespace quorvel {

/// Ends the loading state of a view where nothing more will come; the engine itself would wait for ever.
///
/// A load that was announced here is broken off when its request, and nothing else, has been silent for
/// `StallTimer::limit`: what has come of its document is counted by asking for it. Any other load, and what a
/// document loads in its turn, is never touched. But where a page's process does not even answer, as while it
/// computes for ever, the view counts as loading no longer until it does. A load whose server asks for a
/// sign-in is left to its owner. The view has to outlive the watchdog.
class LoadWatchdog {
 public:
  /// How long the page's process may take to answer when it is asked.
  static constexpr std::chrono::seconds answerLimit{2};

  struct Owner {
    std::function<void()> onGivingUp; ///< the announced load is about to be broken off
    std::function<void()> onChange;   ///< `hasGivenUp()` may say something else now
  };
  LoadWatchdog(WebKitWebView* view, TimerFunction startTimer, Owner owner);
  ~LoadWatchdog();
  LoadWatchdog(const LoadWatchdog&) = delete;
  LoadWatchdog& operator=(const LoadWatchdog&) = delete;

  /// The view has just been told to load something.
  void begin();
  /// Nothing more is expected of what the view still calls loading.
  bool hasGivenUp() const { return hasGivenUp_; }

 private:
  /// How far the announced request has come.
  enum class Request { none, asked, answered };

  void noteEvent(WebKitLoadEvent event);
  void leaveToOwner();
  void noteProgress();
  void noteEndOfRequest();
  void followDocument(WebKitWebResource* document);
  void onStall();
  void ask();
  void onAnswer(bool isKnown, gsize length);
  void forgetQuestion();
  void giveUp();
  void setGivenUp(bool hasGivenUp);

  WebKitWebView* view_;
  TimerFunction startTimer_;
  Owner owner_;
  StallTimer timer_;
  sigc::connection answerTimer_;
  Request request_ = Request::none;
  std::string address_; // of the announced request
  bool hasGivenUp_ = false;
  GObjectPointer<WebKitWebResource> document_; // that the announced request brings
  gsize knownLength_ = 0;                      // of it, in bytes, when last asked for
  GObjectPointer<GCancellable> question_{g_cancellable_new()};
};

} // namespace quorvel
