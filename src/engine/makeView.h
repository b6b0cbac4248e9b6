#pragma once

#include "engine/GObjectPointer.h"

#include <webkit/webkit.h>

namespace quorvel {

/// A view on pages of this session as the program wants it: it names the program to servers, lets scripts
/// open windows, goes back and forward by swiping, and lets the Tab key leave it.
GObjectPointer<WebKitWebView> makeView(WebKitNetworkSession* session);

} // namespace quorvel
