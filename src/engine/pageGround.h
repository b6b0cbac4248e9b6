#pragma once

#include <webkit/webkit.h>

namespace quorvel {

/// Has the view be black before its first page and until another page draws itself, as the window around it
/// is. A page that names no background and writes in dark letters counts on a white one, and gets it.
void keepGroundDark(WebKitWebView* view);

} // namespace quorvel
