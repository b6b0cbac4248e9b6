#include "engine/permissions.h"

namespace quorvel {
namespace {

gboolean refuse(WebKitWebView*, WebKitPermissionRequest* request, gpointer) {
  webkit_permission_request_deny(request);
  return TRUE;
}

gboolean sayRefused(WebKitWebView*, WebKitPermissionStateQuery* query, gpointer) {
  webkit_permission_state_query_finish(query, WEBKIT_PERMISSION_STATE_DENIED);
  return TRUE;
}

} // namespace

void refusePermissions(WebKitWebView* view) {
  // The engine by itself grants one of them: the pointer.
  g_signal_connect(view, "permission-request", G_CALLBACK(refuse), nullptr);
  g_signal_connect(view, "query-permission-state", G_CALLBACK(sayRefused), nullptr);
  webkit_settings_set_enable_fullscreen(webkit_web_view_get_settings(view), FALSE);
}

} // namespace quorvel
