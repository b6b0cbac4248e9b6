#pragma once

#include <webkit/webkit.h>

namespace quorvel {

/// Cancels the dialog in which the engine asks what of the view's page to print, if there is one. While it is
/// open the engine turns the main loop within a handler of its own, and the program cannot end.
void closePrintDialog(WebKitWebView* view);

} // namespace quorvel
