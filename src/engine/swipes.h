#pragma once

#include <webkit/webkit.h>

namespace quorvel {

/// Lets fingers on a touch screen or a touch pad swipe the view back and forward.
///
/// While swiping is on the engine keeps a picture of each page that is left, to show it under the one that is
/// swiped away: 2.5 MiB each in the smallest window, and up to a hundred of them. So it is on from the moment
/// a finger moves sideways until a minute after, and whoever swipes nothing pays nothing; a page of which
/// there is no picture is plain until it is there. Swiping is never on while the view has no window, in which
/// the engine would crash over such a picture (WebKitGTK 2.50 and 2.52).
void allowSwipes(WebKitWebView* view);

} // namespace quorvel
