#pragma once

#include <webkit/webkit.h>

namespace quorvel {

/// Lets Alt with the left and the right arrow go through the view's history, once per press, where the page
/// has not used the key itself.
///
/// A program would usually get a key back that the page leaves alone. These the engine keeps: it takes any
/// arrow for scrolling, whatever is held with it. So a script of ours beside the page's own looks what became
/// of the key; the page can neither see nor call it.
void goThroughHistoryByKey(WebKitWebView* view);

} // namespace quorvel
