#pragma once

#include <webkit/webkit.h>

namespace quorvel {

/// Keeps what the engine opens over the page, and lets the page fill, within bounds: `popupTexts`,
/// `popupSize` and `popupPlace`.
void boundPopups(WebKitWebView* view);

} // namespace quorvel
