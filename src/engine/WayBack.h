#pragma once

#include "engine/GObjectPointer.h"

#include <memory>
#include <webkit/webkit.h>

namespace quorvel {

/// Where Back leads out of a document that has put entries into the history by itself. The engine leaves them
/// out as far as it can tell them from others; of a hundred entries the first is dropped with each new one,
/// and so a page can push what the owner came from out of the history. The view has to outlive it.
class WayBack {
 public:
  explicit WayBack(WebKitWebView* view);
  ~WayBack();
  WayBack(const WayBack&) = delete;
  WayBack& operator=(const WayBack&) = delete;

  /// What comes into the history from here on may be the owner's.
  void noteOwner() { isPageAlone_ = false; }
  /// The entry that the owner came from, where all that follows is the document's own doing; or null.
  WebKitBackForwardListItem* target() const;
  /// Whether there is such an entry, but no longer in the history.
  bool isLost() const;
  /// Sets the history back to what it was when the document came, and says what the target is in it. No
  /// process of the page's may be there.
  WebKitBackForwardListItem* restore();

 private:
  struct FreeState {
    void operator()(WebKitWebViewSessionState* state) const { webkit_web_view_session_state_unref(state); }
  };
  WebKitBackForwardList* history() const { return webkit_web_view_get_back_forward_list(view_); }
  void noteDocument();
  void hold();

  WebKitWebView* view_;
  GObjectPointer<WebKitBackForwardListItem> own_, origin_; // of the document on screen
  std::unique_ptr<WebKitWebViewSessionState, FreeState> whenItCame_;
  bool isPageAlone_ = false;
};

} // namespace quorvel
