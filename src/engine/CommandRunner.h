#pragma once

#include "engine/ErrorPage.h"
#include "engine/FloodGauge.h"
#include "engine/GObjectPointer.h"
#include "engine/NetworkWatch.h"
#include "engine/OwnersCommand.h"
#include "engine/WayBack.h"

#include <functional>
#include <string>
#include <webkit/webkit.h>

namespace quorvel {

/// Has a view do what the owner asks for, whatever the page on screen is up to: `OwnersCommand` on the
/// engine. The view has to outlive it.
class CommandRunner : public sigc::trackable {
 public:
  struct Owner {
    std::function<void()> onLoad;        ///< the view has just been told to load an address
    std::function<bool()> isInPage;      ///< the owner has turned to the page since the last command
    std::function<bool()> isDownloading; ///< anything is being downloaded
  };
  CommandRunner(WebKitWebView* view, TimerFunction startTimer, Owner owner);
  ~CommandRunner();
  CommandRunner(const CommandRunner&) = delete;
  CommandRunner& operator=(const CommandRunner&) = delete;

  void load(const std::string& address);
  /// Where the page itself has asked for it, in place of a window.
  void loadForPage(const std::string& address);
  void reload();
  void goBack();
  void goForward();
  /// Does what one of the above does at the expense of a process that is known to hang.
  void overrule(const std::function<void()>& command);

  /// The address of the last load, as it was asked for.
  const std::string& requested() const { return requested_; }

  /// Until the owner has what he asked for, the page has no say in where the view goes.
  bool isUnderWay() const { return command_.isUnderWay(); }
  /// Whether a navigation that the view asks about is the one that the owner asked for, or follows from it.
  bool claims(WebKitNavigationAction* action);
  /// What the view is asked about an answer to one of its loads.
  void noteResponse(WebKitResponsePolicyDecision* response);
  /// What was asked for is not waited for any longer.
  void giveUp();
  /// The owner has turned to the page.
  void noteGesture() { wayBack_.noteOwner(); }

 private:
  /// What was asked for, and as what the engine will ask back.
  struct Wish {
    WebKitNavigationType type = WEBKIT_NAVIGATION_TYPE_OTHER;
    std::function<void()> carryOut = [] {};
    std::function<void()> begin = nullptr; ///< in place of that, where it is not done again
  };

  void letPass(const std::function<void()>& command);
  void leaveBackwards();
  /// The owner, for what he asked for last.
  bool isWaiting() const { return isUnderWay() || isAfresh_; }
  bool isBeyondAsking() const;
  void goTo(WebKitBackForwardListItem* neighbour, void (*go)(WebKitWebView*));
  void leaveFor(WebKitBackForwardListItem* origin);
  void goToOrigin();
  void aimAt(WebKitBackForwardListItem* item);
  void goToTarget();
  void noteTarget(const std::string& address);
  void carryOut(Wish wish);
  std::string destination() const;
  void ask();
  /// `place` is where the page says it is.
  void noteAnswer(const std::string& place);
  void replacePage();
  void insist();
  void startAfresh();
  void noteEvent(WebKitLoadEvent event);
  void noteArrivalAt(const std::string& address);
  bool leadsTo(const std::string& address) const;
  bool isBrokenOff(const GError* error) const;
  /// Whether the engine need not show that it failed.
  bool noteFailure(const std::string& address, const GError* error);

  void tellToLoad();

  WebKitWebView* view_;
  Owner owner_;
  std::string requested_;
  Wish wish_;
  std::string expected_; // the address that the wish leads to, as the engine writes it; empty if not known
  std::string failed_;   // the address of the last load that did
  bool staysInDocument_ = false;
  bool isRedirected_ = false;
  bool isPageless_ = false;                          // what was answered
  bool isOverruled_ = false;                         // the page, without another question
  bool isUnopposed_ = false;                         // by any page, so far as the view knew
  bool isAfresh_ = false;                            // on a fresh process, and nothing has come of it yet
  GObjectPointer<WebKitBackForwardListItem> target_; // in the history
  OwnersCommand command_;
  NetworkWatch network_;
  FloodGauge gauge_;
  WayBack wayBack_;
  ErrorPage errorPage_;
  GObjectPointer<GCancellable> question_{g_cancellable_new()};
};

} // namespace quorvel
