#include "DesktopBrowserModel.h"

#include "DesktopSystemHandler.h"

#include <glibmm/main.h>

namespace quorvel {
namespace {

constexpr const char* userAgentToken = " Quorvel Desktop";

GObjectPointer<WebKitSettings> makeSettings() {
  GObjectPointer<WebKitSettings> settings(webkit_settings_new());
  // Appended by hand: the engine's own call for this would add a version too.
  const auto userAgent = std::string(webkit_settings_get_user_agent(settings.get())) + userAgentToken;
  webkit_settings_set_user_agent(settings.get(), userAgent.c_str());
  webkit_settings_set_javascript_can_open_windows_automatically(settings.get(), TRUE);
  return settings;
}

/// Swiping back and forward. The engine takes a picture of each page it leaves for that, and crashes on a
/// view that has no window to draw it with; so gestures are on exactly while there is one.
void allowGesturesInAWindow(WebKitWebView* view) {
  static constexpr auto allow = [](WebKitWebView* shown, bool isAllowed) {
    webkit_settings_set_enable_back_forward_navigation_gestures(webkit_web_view_get_settings(shown),
                                                                isAllowed);
  };
  const auto onRealize = +[](WebKitWebView* shown) { allow(shown, true); };
  const auto onUnrealize = +[](WebKitWebView* shown) { allow(shown, false); };
  g_signal_connect(view, "realize", G_CALLBACK(onRealize), nullptr);
  g_signal_connect(view, "unrealize", G_CALLBACK(onUnrealize), nullptr);
}

/// The engine keeps a text view inside its own for input methods. As a stop of the Tab key it would never be
/// left.
void keepTabMoving(WebKitWebView* view) {
  for (auto* child = gtk_widget_get_first_child(GTK_WIDGET(view)); child;
       child = gtk_widget_get_next_sibling(child))
    gtk_widget_set_focusable(child, FALSE);
}

GObjectPointer<WebKitWebView> makeView(WebKitNetworkSession* session) {
  const auto settings = makeSettings();
  gpointer view =
      g_object_new(WEBKIT_TYPE_WEB_VIEW, "network-session", session, "settings", settings.get(), nullptr);
  allowGesturesInAWindow(WEBKIT_WEB_VIEW(view));
  keepTabMoving(WEBKIT_WEB_VIEW(view));
  return GObjectPointer<WebKitWebView>(WEBKIT_WEB_VIEW(g_object_ref_sink(view)));
}

std::string textOrNothing(const char* text) {
  return text ? text : "";
}

} // namespace

DesktopBrowserModel::DesktopBrowserModel()
    : DesktopBrowserModel(Surroundings{.system = std::make_shared<DesktopSystemHandler>()}) {}

DesktopBrowserModel::DesktopBrowserModel(Surroundings surroundings)
    : system_(std::move(surroundings.system)), session_(surroundings.folders),
      webView_(makeView(session_.get())), watchdog_(webView(), std::move(surroundings.startTimer)) {
  watchView();
  load(QuorvelRoute::agent);
}

DesktopBrowserModel::~DesktopBrowserModel() {
  g_signal_handlers_disconnect_by_data(webView(), this);
  g_signal_handlers_disconnect_by_data(webkit_web_view_get_back_forward_list(webView()), this);
}

void DesktopBrowserModel::watchView() {
  const auto watch = [this](gpointer object, const char* signal, void (*callback)(DesktopBrowserModel*)) {
    g_signal_connect_swapped(object, signal, G_CALLBACK(callback), this);
  };
  const auto onState = [](DesktopBrowserModel* model) { model->updateState(); };
  // Moves within a document (fragments, pushState) and late titles come with no load event of their own.
  for (const char* signal : {"load-changed", "notify::is-loading", "notify::uri", "notify::title"})
    watch(webView(), signal, onState);
  watch(webkit_web_view_get_back_forward_list(webView()), "changed", onState);

  const auto onFailure = +[](DesktopBrowserModel* model) -> gboolean {
    model->updateState();
    return FALSE; // the engine shows its own page
  };
  g_signal_connect_swapped(webView(), "load-failed", G_CALLBACK(onFailure), this);
  const auto onDecision =
      +[](WebKitWebView*, WebKitPolicyDecision* decision, WebKitPolicyDecisionType type,
          DesktopBrowserModel* model) -> gboolean { return model->decide(decision, type); };
  g_signal_connect(webView(), "decide-policy", G_CALLBACK(onDecision), this);
  const auto onWindow =
      +[](WebKitWebView*, WebKitNavigationAction* action, DesktopBrowserModel* model) -> GtkWidget* {
    model->openWindow(action);
    return nullptr;
  };
  g_signal_connect(webView(), "create", G_CALLBACK(onWindow), this);
}

void DesktopBrowserModel::load(QuorvelRoute route) {
  load(url(route));
}

void DesktopBrowserModel::load(const std::string& address) {
  requested_ = address;
  currentURLString = address;
  webkit_web_view_load_uri(webView(), address.c_str());
}

void DesktopBrowserModel::reload() {
  webkit_web_view_reload(webView());
}

void DesktopBrowserModel::goBack() {
  webkit_web_view_go_back(webView());
}

void DesktopBrowserModel::goForward() {
  webkit_web_view_go_forward(webView());
}

void DesktopBrowserModel::openExternal() {
  const auto address = presentAddress();
  system_->open(address.empty() ? url(QuorvelRoute::agent) : address);
}

bool DesktopBrowserModel::isShowing(QuorvelRoute route) const {
  const auto address = presentAddress();
  return matches(route, address.empty() ? *currentURLString : address);
}

void DesktopBrowserModel::updateState() {
  Glib::signal_idle().connect_once(sigc::mem_fun(*this, &DesktopBrowserModel::copyState),
                                   Glib::PRIORITY_DEFAULT);
}

void DesktopBrowserModel::copyState() {
  canGoBack = webkit_web_view_can_go_back(webView());
  canGoForward = webkit_web_view_can_go_forward(webView());
  isLoading = webkit_web_view_is_loading(webView());
  const auto address = presentAddress();
  currentURLString = address.empty() ? *currentURLString : address;
  const char* pageTitle = webkit_web_view_get_title(webView());
  title = pageTitle ? pageTitle : "Quorvel";
}

bool DesktopBrowserModel::decide(WebKitPolicyDecision* decision, WebKitPolicyDecisionType type) {
  if (type == WEBKIT_POLICY_DECISION_TYPE_RESPONSE)
    return false;
  auto* action =
      webkit_navigation_policy_decision_get_navigation_action(WEBKIT_NAVIGATION_POLICY_DECISION(decision));
  const auto asked = request(action, type == WEBKIT_POLICY_DECISION_TYPE_NEW_WINDOW_ACTION);
  if (settle(asked) == NavigationChoice::view)
    webkit_policy_decision_use(decision);
  else
    webkit_policy_decision_ignore(decision);
  return true;
}

void DesktopBrowserModel::openWindow(WebKitNavigationAction* action) {
  const auto asked = request(action, true);
  if (settle(asked) == NavigationChoice::view)
    load(asked.address);
}

NavigationChoice DesktopBrowserModel::settle(const NavigationRequest& asked) {
  const auto choice = choose(asked);
  if (choice == NavigationChoice::system)
    system_->open(asked.address);
  return choice;
}

NavigationRequest DesktopBrowserModel::request(WebKitNavigationAction* action, bool wantsWindow) const {
  const auto address =
      textOrNothing(webkit_uri_request_get_uri(webkit_navigation_action_get_request(action)));
  // What a page does by itself has a type of its own or cannot name a file.
  const bool isDropped =
      webkit_navigation_action_get_navigation_type(action) == WEBKIT_NAVIGATION_TYPE_OTHER &&
      address != requested_;
  return {address, wantsWindow, isDropped};
}

std::string DesktopBrowserModel::presentAddress() const {
  const auto address = textOrNothing(webkit_web_view_get_uri(webView()));
  // While a redirect to a mail address is being refused, the view names it as its own.
  return choose({address}) == NavigationChoice::system ? "" : address;
}

} // namespace quorvel
