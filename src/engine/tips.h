#pragma once

#include <webkit/webkit.h>

namespace quorvel {

/// Cuts what a page says in the tip of a thing that the pointer rests on: the toolkit lays out all of it, and
/// a megabyte would hold the window up for seconds.
void cutTips(WebKitWebView* view);

} // namespace quorvel
