#pragma once

#include <webkit/webkit.h>

namespace quorvel {

/// Has the Tab key go through the view as through any other part of a window: from its last stop to the one
/// that follows the view, and with Shift from its first to the one before.
void keepTabMoving(WebKitWebView* view);

} // namespace quorvel
