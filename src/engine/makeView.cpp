#include "engine/makeView.h"

#include "engine/pageGround.h"
#include "engine/permissions.h"
#include "engine/popups.h"
#include "engine/swipes.h"
#include "engine/tabKey.h"
#include "engine/tips.h"

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

/// The engine's own are twice as wide, and light on many a page. A page's own rules come before these.
constexpr const char* slimScrollbars = R"(
::-webkit-scrollbar { width: 10px; height: 10px; background: #0b0b0b; }
::-webkit-scrollbar-corner { background: #0b0b0b; }
::-webkit-scrollbar-thumb { background: #4a4a4a; border: 2px solid #0b0b0b; border-radius: 5px; }
::-webkit-scrollbar-thumb:hover { background: #7a7a7a; }
)";

/// Where scrollbars take room from the page instead of lying over it.
void makeScrollbarsSlim(WebKitWebView* view) {
  gboolean doOverlay = TRUE;
  g_object_get(gtk_settings_get_default(), "gtk-overlay-scrolling", &doOverlay, nullptr);
  if (doOverlay)
    return;
  auto* style = webkit_user_style_sheet_new(slimScrollbars, WEBKIT_USER_CONTENT_INJECT_ALL_FRAMES,
                                            WEBKIT_USER_STYLE_LEVEL_USER, nullptr, nullptr);
  webkit_user_content_manager_add_style_sheet(webkit_web_view_get_user_content_manager(view), style);
  webkit_user_style_sheet_unref(style);
}

} // namespace

GObjectPointer<WebKitWebView> makeView(WebKitNetworkSession* session) {
  const auto settings = makeSettings();
  gpointer view =
      g_object_new(WEBKIT_TYPE_WEB_VIEW, "network-session", session, "settings", settings.get(), nullptr);
  refusePermissions(WEBKIT_WEB_VIEW(view));
  makeScrollbarsSlim(WEBKIT_WEB_VIEW(view));
  allowSwipes(WEBKIT_WEB_VIEW(view));
  keepTabMoving(WEBKIT_WEB_VIEW(view));
  keepGroundDark(WEBKIT_WEB_VIEW(view));
  boundPopups(WEBKIT_WEB_VIEW(view));
  cutTips(WEBKIT_WEB_VIEW(view));
  return GObjectPointer<WebKitWebView>(WEBKIT_WEB_VIEW(g_object_ref_sink(view)));
}

} // namespace quorvel
