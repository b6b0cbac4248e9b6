#pragma once

#include <string>
#include <webkit/webkit.h>

namespace quorvel {

/// What the engine says; "" where it gives no text at all.
inline std::string textOrNothing(const char* text) {
  return text ? text : "";
}

/// The address that the view is at or on its way to; "" before there is one.
inline std::string addressOf(WebKitWebView* view) {
  return textOrNothing(webkit_web_view_get_uri(view));
}

} // namespace quorvel
