#pragma once

#include "GObjectPointer.h"
#include "LoadWatchdog.h"
#include "NavigationPolicy.h"
#include "ObservableObject.h"
#include "Published.h"
#include "QuorvelRoute.h"
#include "SystemHandler.h"
#include "WebSession.h"

#include <memory>
#include <string>

namespace quorvel {

/// The live client's one model: owns the one web view, decides what leaves it, and mirrors its state for the
/// window.
///
/// Made once, after the toolkit has started; everything happens on the main thread. The view's state reaches
/// the published fields later, by one task on the main loop per event of the view, each reading what holds
/// when it runs; tasks still waiting when the model goes are dropped. A load that fails is silent and merely
/// ends the loading state; so does one that makes no progress for `StallTimer::limit`.
class DesktopBrowserModel final : public ObservableObject, public sigc::trackable {
 public:
  /// What the model uses of the world around it.
  struct Surroundings {
    WebFolders folders = WebFolders::ofUser();
    std::shared_ptr<SystemHandler> system;
    TimerFunction startTimer = mainLoopTimer();
  };

  /// Asks for the first page, the agent's, at once.
  DesktopBrowserModel();
  explicit DesktopBrowserModel(Surroundings surroundings);
  ~DesktopBrowserModel();

  Published<bool> canGoBack{*this, false};
  Published<bool> canGoForward{*this, false};
  Published<bool> isLoading{*this, false};
  /// The address last asked for or last seen in the view.
  Published<std::string> currentURLString{*this, url(QuorvelRoute::agent)};
  Published<std::string> title{*this, "Quorvel"};

  void load(QuorvelRoute route);
  void load(const std::string& address);
  void reload();
  void goBack();
  void goForward();
  /// Opens the view's present address, or the agent's when there is none, in the user's default browser.
  void openExternal();
  bool isShowing(QuorvelRoute route) const;

  /// The one view, for a host to place; it stays the model's.
  WebKitWebView* webView() const { return webView_.get(); }

 private:
  void watchView();
  void updateState();
  void copyState();
  bool decide(WebKitPolicyDecision* decision, WebKitPolicyDecisionType type);
  void openWindow(WebKitNavigationAction* action);
  NavigationChoice settle(const NavigationRequest& asked);
  NavigationRequest request(WebKitNavigationAction* action, bool wantsWindow) const;
  std::string presentAddress() const;

  std::shared_ptr<SystemHandler> system_;
  WebSession session_;
  GObjectPointer<WebKitWebView> webView_;
  std::string requested_; // the address of the last `load()`
  LoadWatchdog watchdog_;
};

} // namespace quorvel
