#pragma once

#include <webkit/webkit.h>

namespace quorvel {

/// Cuts what a page says in a bubble beside a field of a form and in the list of a field's choices, and what
/// its server says in the question for a sign-in: the engine lays out all of it, and a megabyte would hold
/// the window up for seconds. A bubble and a list also get no larger than the screen has room for: the
/// toolkit would close them at once.
void cutPopups(WebKitWebView* view);

} // namespace quorvel
