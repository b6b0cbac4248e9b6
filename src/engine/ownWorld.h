#pragma once

#include <functional>
#include <string>
#include <webkit/webkit.h>

namespace quorvel {

/// A script of ours beside those of the pages: it sees what they see, and they can neither see nor call it.
struct OwnScript {
  const char* text;
  const char* channel; ///< the handler it posts its messages to; the view's content manager tells of them
  WebKitUserContentInjectedFrames frames;
  WebKitUserScriptInjectionTime time;
};

/// Has the script run in every page of the view from the next one on.
void runInPages(WebKitWebView* view, const OwnScript& script);

/// Has the page on screen evaluate an expression, out of its own scripts' sight. `onAnswer` gets what came
/// out as a text, or "" where nothing did; it is called at most once, and not after `question` was cancelled.
void askPage(WebKitWebView* view, const char* expression, GCancellable* question,
             std::function<void(const std::string&)> onAnswer);

} // namespace quorvel
