#pragma once

#include "engine/GObjectPointer.h"
#include "engine/TimerFunction.h"

#include <functional>
#include <webkit/webkit.h>

namespace quorvel {

/// Lets a view answer keys that everybody expects a page to know, where the page has not used the key itself:
/// Alt with the left and the right arrow go through the view's history, once per press, and Control with Z
/// and Control with Shift and Z take back and bring back what was typed into a field.
///
/// A program would usually get a key back that the page leaves alone. The arrows the engine keeps: it takes
/// any for scrolling, whatever is held with it. So a script of ours beside the page's own looks what became
/// of the key; the page can neither see nor call it. And while a page's process does not answer, nobody gets
/// any key back: then the arrows and F5 are the owner's. The view has to outlive this.
class PageKeys {
 public:
  /// How long the page's process may take to answer after one of the owner's keys.
  static constexpr std::chrono::milliseconds patience{2500};

  enum class Key { back, forward, reload };
  struct Owner {
    std::function<void(Key)> onLeft;   ///< the page has left the key alone; it gives back F5 by itself
    std::function<void(Key)> onUnread; ///< the page's process hangs
  };
  PageKeys(WebKitWebView* view, TimerFunction startTimer, Owner owner);
  ~PageKeys();
  PageKeys(const PageKeys&) = delete;
  PageKeys& operator=(const PageKeys&) = delete;

 private:
  void listenInPages();
  void listenBeforePages();
  void answer(const char* key);
  void notePress(guint letter, GdkModifierType held);
  void ask();
  void forgetQuestion();
  Key keyOfArrow(bool isLeft) const;

  WebKitWebView* view_;
  TimerFunction startTimer_;
  Owner owner_;
  GtkEventController* presses_;
  sigc::connection timer_;
  GObjectPointer<GCancellable> question_{g_cancellable_new()};
};

} // namespace quorvel
