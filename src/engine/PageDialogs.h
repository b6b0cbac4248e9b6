#pragma once

#include "engine/PageDialog.h"

#include <functional>
#include <memory>
#include <optional>
#include <sigc++/sigc++.h>
#include <webkit/webkit.h>

namespace quorvel {

/// The dialogs of a view's pages, of which there is one at a time. Its page stands still until it is
/// answered.
///
/// A page that has been silenced, or that tries to detain an owner who leaves, gets the answer of somebody
/// who wants to get on: no to every question but whether to leave. The view has to outlive this.
class PageDialogs : public sigc::trackable {
 public:
  struct Owner {
    /// The dialog to show, or that there is none any more.
    std::function<void(const std::optional<PageDialog>&)> onChange;
    /// Whether the page is being left, so that it is not asked what it has to say.
    std::function<bool()> isLeaving;
  };
  PageDialogs(WebKitWebView* view, Owner owner);
  ~PageDialogs();
  PageDialogs(const PageDialogs&) = delete;
  PageDialogs& operator=(const PageDialogs&) = delete;

  /// Answers the dialog that is shown; without one nothing happens.
  void answer(const DialogAnswer& answer);
  /// The dialog that is shown gets the answer of somebody who wants to get on.
  void dismiss();
  /// Another page, or the owner's turn: it may have its say again.
  void startAfresh();

 private:
  struct Release {
    void operator()(WebKitScriptDialog* dialog) const;
  };
  using Dialog = std::unique_ptr<WebKitScriptDialog, Release>; // closes what it lets go of

  void ask(WebKitScriptDialog* dialog);
  void dropLater(Dialog dialog);

  WebKitWebView* view_;
  Owner owner_;
  Dialog shown_;
  int count_ = 0; // of the dialogs that this page has shown
  bool isSilenced_ = false;
};

} // namespace quorvel
