#pragma once

#include <webkit/webkit.h>

namespace quorvel {

/// Lets the view answer keys that everybody expects a page to know, where the page has not used the key
/// itself: Alt with the left and the right arrow go through the view's history, once per press, and Control
/// with Z and Control with Shift and Z take back and bring back what was typed into a field.
///
/// A program would usually get a key back that the page leaves alone. The arrows the engine keeps: it takes
/// any for scrolling, whatever is held with it. So a script of ours beside the page's own looks what became
/// of the key; the page can neither see nor call it.
void answerKeysThePageLeaves(WebKitWebView* view);

} // namespace quorvel
