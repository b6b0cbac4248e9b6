#pragma once

#include "client/QuorvelRoute.h"
#include "client/ShownDownloads.h"
#include "client/openInSystem.h"
#include "client/showInFolder.h"
#include "engine/WebView.h"
#include "observation/ObservableObject.h"
#include "observation/Published.h"

#include <functional>
#include <string>

namespace quorvel {

/// The live client's one model: owns the one web view and mirrors its state for the window.
///
/// Made once, after the toolkit has started; everything happens on the main thread. The view's state reaches
/// the published fields later, by one task on the main loop per event of the view, each reading what holds
/// when it runs; tasks still waiting when the model goes are dropped. A load that fails is silent and merely
/// ends the loading state. Mail and telephone links leave for the system; a page that asks for a window gets
/// the one view.
class DesktopBrowserModel final : public ObservableObject, public sigc::trackable {
 public:
  /// What the model uses of the world around it.
  struct Surroundings {
    WebFolders folders = WebFolders::ofUser();
    std::function<void(const std::string& address)> openInSystem = quorvel::openInSystem;
    std::function<void(const std::string& path)> showInFolder = quorvel::showInFolder;
    TimerFunction startTimer = mainLoopTimer();
  };

  /// Asks for the first page, the agent's, at once.
  DesktopBrowserModel();
  explicit DesktopBrowserModel(Surroundings surroundings);

  Published<bool> canGoBack{*this, false};
  Published<bool> canGoForward{*this, false};
  Published<bool> isLoading{*this, false};
  /// The address last asked for or last seen in the view.
  Published<std::string> currentURLString{*this, url(QuorvelRoute::agent)};
  Published<std::string> title{*this, "Quorvel"};
  /// What the owner has to know of the page's safety; empty where all is well.
  Published<std::string> warning{*this, ""};
  /// What the page wants to have said or asked before it goes on.
  Published<std::optional<PageDialog>> dialog{*this, std::nullopt};
  /// What pages download. It announces its changes itself: there are many, and they concern one line.
  ShownDownloads downloads;

  void load(QuorvelRoute route);
  void load(const std::string& address);
  void reload();
  void goBack();
  void goForward();
  /// Opens the view's present address, or the agent's when there is none, in the user's default browser.
  void openExternal();
  bool isShowing(QuorvelRoute route) const;
  /// What to tell the owner of where this is: `currentURLString`, or whose page is still on screen while the
  /// window that it has asked for is to come.
  std::string addressOnScreen() const;
  /// Answers the page's dialog; without one nothing happens.
  void answer(const DialogAnswer& answer);
  /// Breaks off a download that is under way.
  void cancel(const Download& download);
  /// Has the file manager show a file that was downloaded.
  void showInFolder(const Download& download);
  /// Whatever the page asks, the owner wants to get on.
  void dismissDialogs();

  /// The one view, for a host to place; it stays the model's.
  WebView& webView() { return webView_; }

 private:
  WebView::Owner viewOwner();
  void updateState();
  void copyState();

  std::function<void(const std::string&)> openInSystem_, showInFolder_;
  WebView webView_;
};

} // namespace quorvel
