#include "engine/makeView.h"

#include "engine/historyKeys.h"

#include <string>

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

} // namespace

GObjectPointer<WebKitWebView> makeView(WebKitNetworkSession* session) {
  const auto settings = makeSettings();
  gpointer view =
      g_object_new(WEBKIT_TYPE_WEB_VIEW, "network-session", session, "settings", settings.get(), nullptr);
  allowGesturesInAWindow(WEBKIT_WEB_VIEW(view));
  keepTabMoving(WEBKIT_WEB_VIEW(view));
  goThroughHistoryByKey(WEBKIT_WEB_VIEW(view));
  return GObjectPointer<WebKitWebView>(WEBKIT_WEB_VIEW(g_object_ref_sink(view)));
}

} // namespace quorvel
