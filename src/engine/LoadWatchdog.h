#pragma once

#include "engine/GObjectPointer.h"
#include "engine/StallTimer.h"

#include <webkit/webkit.h>

namespace quorvel {

/// Ends the loads of a view that make no progress for `StallTimer::limit`; the engine itself would wait for
/// ever.
///
/// Progress is whatever the engine reports, and, where it reports nothing any more, that the document has
/// grown: a document that falls silent half-way is given up after one limit or two. The view has to outlive
/// the watchdog.
class LoadWatchdog {
 public:
  LoadWatchdog(WebKitWebView* view, TimerFunction startTimer);
  ~LoadWatchdog();
  LoadWatchdog(const LoadWatchdog&) = delete;
  LoadWatchdog& operator=(const LoadWatchdog&) = delete;

 private:
  void noteEvent(WebKitLoadEvent event);
  void noteProgress();
  void onStall();
  void compareLength(gsize length);

  WebKitWebView* view_;
  StallTimer timer_;
  bool isCommitted_ = false;
  gsize knownLength_ = 0; // of the document, in bytes, when last asked for
  GObjectPointer<GCancellable> question_{g_cancellable_new()};
};

} // namespace quorvel
