#include "engine/WebView.h"

#include "engine/CommandRunner.h"
#include "engine/LoadWatchdog.h"
#include "engine/NavigationPolicy.h"
#include "engine/OncePerGesture.h"
#include "engine/PageDialogs.h"
#include "engine/PageKeys.h"
#include "engine/PageSandbox.h"
#include "engine/SignInQuestions.h"
#include "engine/UserGestures.h"
#include "engine/WebSession.h"
#include "engine/engineTexts.h"
#include "engine/makeView.h"
#include "engine/printDialog.h"

#include <cstring>
#include <utility>

namespace quorvel {

/// The engine's objects and the answers to their signals.
class WebView::Engine {
 public:
  Engine(const WebFolders& folders, TimerFunction startTimer, Owner owner)
      : owner_(std::move(owner)),
        session_(folders, {[this] { return downloads_.take(); }, owner_.onDownload}),
        view_(makeView(session_.get())), sandbox_(owner_.onUnconfined),
        commands_(view(), startTimer,
                  {[this] { watchdog_.begin(); }, [this] { return isOwnerInPage_; },
                   [this] { return session_.downloads().isBusy(); }}),
        watchdog_(view(), startTimer, {[this] { commands_.giveUp(); }, owner_.onChange}),
        keys_(
            view(), std::move(startTimer),
            {[this](auto key) { obey(key); }, [this](auto key) { commands_.overrule([&] { obey(key); }); }}),
        gestures_(view(), [this] { noteGesture(); }),
        dialogs_(view(), {owner_.onDialog, [this] { return commands_.isUnderWay(); }}) {
    watchState();
    watchNavigation();
  }
  ~Engine() {
    g_signal_handlers_disconnect_by_data(view(), this);
    g_signal_handlers_disconnect_by_data(webkit_web_view_get_back_forward_list(view()), this);
  }
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  WebKitWebView* view() const { return view_.get(); }

  /// For what the owner asks for now.
  CommandRunner& commands() {
    isOwnerInPage_ = isWindowAwaited_ = false;
    renew();
    dismissDialogs();
    dialogs_.startAfresh();
    return commands_;
  }
  void load(const std::string& address) {
    isAskedByPage_ ? commands_.loadForPage(address) : commands().load(address);
  }
  void answer(const DialogAnswer& answer) { dialogs_.answer(answer); }
  void cancelDownload(const std::string& id) { session_.downloads().cancel(id); }
  void dismissDialogs() {
    dialogs_.dismiss();
    closePrintDialog(view());
  }
  std::optional<std::string> addressOfAsker() const;
  bool isLoading() const { return webkit_web_view_is_loading(view()) && !watchdog_.hasGivenUp(); }

 private:
  void watchState();
  void watchNavigation();
  void renew();
  void obey(PageKeys::Key key);
  void noteGesture();
  void noteEvent(WebKitLoadEvent event);
  bool isInTheWay(WebKitNavigationAction* action);
  bool decide(WebKitPolicyDecision* decision, WebKitPolicyDecisionType type);
  void openWindow(WebKitNavigationAction* action);
  NavigationChoice settle(const NavigationRequest& asked);
  NavigationRequest request(WebKitNavigationAction* action, bool wantsWindow) const;

  Owner owner_;
  WebSession session_;
  GObjectPointer<WebKitWebView> view_;
  PageSandbox sandbox_;
  CommandRunner commands_;
  LoadWatchdog watchdog_;
  PageKeys keys_;
  UserGestures gestures_;
  PageDialogs dialogs_;
  SignInQuestions signIns_{view()};
  OncePerGesture launches_; // of mail and telephone programs
  OncePerGesture downloads_;
  OncePerGesture prints_;
  bool isOwnerInPage_ = false;   // rather than at the last command
  bool isByGesture_ = false;     // the navigation under way
  bool isWindowAwaited_ = false; // which the page on screen has asked for
  bool isAskedByPage_ = false;   // for what the owner of the view is told at this moment
};

void WebView::Engine::watchState() {
  const auto onState = +[](Engine* self) { self->owner_.onChange(); };
  // Moves within a document (fragments, pushState) and late titles come with no load event of their own.
  for (const char* signal : {"load-changed", "notify::is-loading", "notify::uri", "notify::title"})
    g_signal_connect_swapped(view(), signal, G_CALLBACK(onState), this);
  g_signal_connect_swapped(webkit_web_view_get_back_forward_list(view()), "changed", G_CALLBACK(onState),
                           this);
  const auto onPage = +[](WebKitWebView*, WebKitLoadEvent event, Engine* self) { self->noteEvent(event); };
  g_signal_connect(view(), "load-changed", G_CALLBACK(onPage), this);
  const auto onFailure = +[](Engine* self) -> gboolean {
    self->owner_.onChange();
    return FALSE; // the engine shows its own page
  };
  g_signal_connect_swapped(view(), "load-failed", G_CALLBACK(onFailure), this);
}

/// What a page may do once for each time that its owner turns to it.
void WebView::Engine::renew() {
  launches_.renew();
  downloads_.renew();
}

void WebView::Engine::obey(PageKeys::Key key) {
  switch (key) {
  case PageKeys::Key::back:
    return commands().goBack();
  case PageKeys::Key::forward:
    return commands().goForward();
  case PageKeys::Key::reload:
    return commands().reload();
  }
}

void WebView::Engine::noteGesture() {
  isOwnerInPage_ = true;
  commands_.noteGesture();
  renew();
  prints_.renew();
}

void WebView::Engine::noteEvent(WebKitLoadEvent event) {
  // The first word of a page: its process is there, and nothing of it is on the screen yet.
  sandbox_.look();
  if (event == WEBKIT_LOAD_COMMITTED && addressOfAsker() == addressOf(view()))
    isWindowAwaited_ = false;
  if (event == WEBKIT_LOAD_COMMITTED && std::exchange(isByGesture_, false)) {
    renew();
    dialogs_.startAfresh();
  }
}

void WebView::Engine::watchNavigation() {
  const auto onDecision = +[](WebKitWebView*, WebKitPolicyDecision* decision, WebKitPolicyDecisionType type,
                              Engine* self) -> gboolean { return self->decide(decision, type); };
  g_signal_connect(view(), "decide-policy", G_CALLBACK(onDecision), this);
  const auto onWindow = +[](WebKitWebView*, WebKitNavigationAction* action, Engine* self) -> GtkWidget* {
    self->openWindow(action);
    return nullptr;
  };
  g_signal_connect(view(), "create", G_CALLBACK(onWindow), this);
  const auto onPrint = +[](WebKitWebView*, WebKitPrintOperation*, Engine* self) -> gboolean {
    return !self->prints_.take(); // what is not dropped here the engine asks the owner about
  };
  g_signal_connect(view(), "print", G_CALLBACK(onPrint), this);
}

/// Until the owner has what he has asked for; unless he has turned to the page since, and wants this.
bool WebView::Engine::isInTheWay(WebKitNavigationAction* action) {
  if (commands_.claims(action) || !commands_.isUnderWay())
    return false;
  if (isOwnerInPage_ && webkit_navigation_action_is_user_gesture(action))
    commands_.giveUp();
  return commands_.isUnderWay();
}

bool WebView::Engine::decide(WebKitPolicyDecision* decision, WebKitPolicyDecisionType type) {
  if (type == WEBKIT_POLICY_DECISION_TYPE_RESPONSE) {
    commands_.noteResponse(WEBKIT_RESPONSE_POLICY_DECISION(decision));
    return false;
  }
  auto* action =
      webkit_navigation_policy_decision_get_navigation_action(WEBKIT_NAVIGATION_POLICY_DECISION(decision));
  const auto asked = request(action, type == WEBKIT_POLICY_DECISION_TYPE_NEW_WINDOW_ACTION);
  isByGesture_ = webkit_navigation_action_is_user_gesture(action);
  if (!isInTheWay(action) && settle(asked) == NavigationChoice::view)
    webkit_policy_decision_use(decision);
  else
    webkit_policy_decision_ignore(decision);
  return true;
}

void WebView::Engine::openWindow(WebKitNavigationAction* action) {
  const auto asked = request(action, true);
  if (isInTheWay(action) || settle(asked) != NavigationChoice::view)
    return;
  isAskedByPage_ = isWindowAwaited_ = true;
  owner_.openWindow(asked.address);
  isAskedByPage_ = false;
}

/// The engine's own word for it is where it is on the way to; the history knows of what has come.
std::optional<std::string> WebView::Engine::addressOfAsker() const {
  auto* shown = webkit_back_forward_list_get_current_item(webkit_web_view_get_back_forward_list(view()));
  if (!isWindowAwaited_ || !webkit_web_view_is_loading(view()) || !shown)
    return std::nullopt;
  return textOrNothing(webkit_back_forward_list_item_get_uri(shown));
}

NavigationChoice WebView::Engine::settle(const NavigationRequest& asked) {
  const auto choice = choose(asked);
  if (choice == NavigationChoice::system && launches_.take())
    owner_.openInSystem(asked.address);
  return choice;
}

NavigationRequest WebView::Engine::request(WebKitNavigationAction* action, bool wantsWindow) const {
  const auto address =
      textOrNothing(webkit_uri_request_get_uri(webkit_navigation_action_get_request(action)));
  // What a page does by itself has a type of its own or cannot name a file.
  const bool isDropped =
      webkit_navigation_action_get_navigation_type(action) == WEBKIT_NAVIGATION_TYPE_OTHER &&
      address != commands_.requested();
  return {address, wantsWindow, isDropped};
}

WebView::WebView(const WebFolders& folders, TimerFunction startTimer, Owner owner)
    : engine_(std::make_unique<Engine>(folders, std::move(startTimer), std::move(owner))) {}

WebView::~WebView() = default;

void WebView::load(const std::string& address) {
  engine_->load(address);
}

void WebView::answer(const DialogAnswer& answer) {
  engine_->answer(answer);
}

void WebView::cancelDownload(const std::string& id) {
  engine_->cancelDownload(id);
}

void WebView::dismissDialogs() {
  engine_->dismissDialogs();
}

void WebView::reload() {
  engine_->commands().reload();
}

void WebView::goBack() {
  engine_->commands().goBack();
}

void WebView::goForward() {
  engine_->commands().goForward();
}

bool WebView::canGoBack() const {
  return webkit_web_view_can_go_back(engine_->view());
}

bool WebView::canGoForward() const {
  return webkit_web_view_can_go_forward(engine_->view());
}

bool WebView::isLoading() const {
  return engine_->isLoading();
}

std::string WebView::address() const {
  std::string address;
  copyAddress(address);
  return address;
}

void WebView::copyAddress(std::string& address) const {
  const char* seen = webkit_web_view_get_uri(engine_->view());
  if (!seen || !*seen || address == seen)
    return;
  // While a redirect to a mail address is being refused, the view names it as its own. Its beginning tells.
  if (choose({std::string(seen, strnlen(seen, 32))}) != NavigationChoice::system)
    address = seen;
}

std::optional<std::string> WebView::addressOfAsker() const {
  return engine_->addressOfAsker();
}

std::optional<std::string> WebView::title() const {
  const char* title = webkit_web_view_get_title(engine_->view());
  return title ? std::optional<std::string>(title) : std::nullopt;
}

Gtk::Widget& WebView::widget() const {
  return *Glib::wrap(GTK_WIDGET(engine_->view()));
}

} // namespace quorvel
