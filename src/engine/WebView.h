#pragma once

#include "engine/Download.h"
#include "engine/PageDialog.h"
#include "engine/StallTimer.h"
#include "engine/WebFolders.h"

#include <functional>
#include <gtkmm/widget.h>
#include <memory>
#include <optional>
#include <string>

namespace quorvel {

/// The web engine as the rest of the program knows it: one view on web pages and the session behind it.
///
/// Made after the toolkit has started; everything happens on the main thread. What a page may open, and
/// where, is decided here by `choose()`. A load that fails is silent, and one begun by `load()` whose request
/// is silent for `StallTimer::limit` is ended. A page that hangs or goes elsewhere is no obstacle: then its
/// process makes way for what the owner asks for.
class WebView {
 public:
  /// Whom the view tells and asks. The functions are called inside the engine's own handlers, where its flags
  /// may still be the old ones. None is called once the view is gone.
  struct Owner {
    /// Address, title, history or loading state may have changed.
    std::function<void()> onChange = [] {};
    /// Something on screen leads out of the view: a mail or telephone link. A page comes to this once for
    /// each time that its owner turns to it; what it tries beyond that is dropped.
    std::function<void(const std::string& address)> openInSystem = [](const std::string&) {};
    /// The page asks for a window. There is none but this one's.
    std::function<void(const std::string& address)> openWindow = [](const std::string&) {};
    /// The page's dialog that is to be shown, or that there is none any more.
    std::function<void(const std::optional<PageDialog>&)> onDialog = [](const auto&) {};
    /// A download has started, come further or ended.
    std::function<void(const Download&)> onDownload = [](const auto&) {};
    /// Pages are not confined, for reasons given in a sentence or two; said once at the most.
    std::function<void(const std::string& warning)> onUnconfined = [](const std::string&) {};
  };

  WebView(const WebFolders& folders, TimerFunction startTimer, Owner owner);
  ~WebView();
  WebView(const WebView&) = delete;
  WebView& operator=(const WebView&) = delete;

  void load(const std::string& address);
  void reload();
  void goBack();
  void goForward();

  /// Answers the dialog that is shown.
  void answer(const DialogAnswer& answer);
  /// Breaks off a download; of one that has ended already nothing changes.
  void cancelDownload(const std::string& id);
  /// Whatever the page asks, it gets the answer of somebody who wants to get on.
  void dismissDialogs();

  bool canGoBack() const;
  bool canGoForward() const;
  bool isLoading() const;
  /// The address on screen; empty where there is none, as after the page's process has died.
  std::string address() const;
  /// The same into `address`, which stays as it is where there is none. A page's address may be megabytes
  /// long and change all the time: it is copied no more often than it must be.
  void copyAddress(std::string& address) const;
  /// While a window that a page has asked for has nothing to show yet: the address of that page, which is
  /// still on screen and may say anything. Otherwise nothing.
  std::optional<std::string> addressOfAsker() const;
  /// The page's title, which may be empty; nothing where the page names none.
  std::optional<std::string> title() const;

  /// The view, for a host to place; it stays this object's.
  Gtk::Widget& widget() const;

 private:
  class Engine;
  std::unique_ptr<Engine> engine_;
};

} // namespace quorvel
