#pragma once

#include <webkit/webkit.h>

namespace quorvel {

/// Refuses whatever a page asks for beyond being a page: place, camera, microphone, notices, the clipboard,
/// the pointer, the whole screen and so on. The window has no way to grant any of it, and for the pointer and
/// the screen none out of it that would always be seen.
void refusePermissions(WebKitWebView* view);

} // namespace quorvel
