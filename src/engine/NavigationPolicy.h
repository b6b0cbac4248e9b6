#pragma once

#include <string>

namespace quorvel {

/// What the page on screen, or something dropped on it, asks to open.
struct NavigationRequest {
  /// The address as the engine prints it; empty when the request names none.
  std::string address;
  /// The request is for a window of its own: a blank target, or a script's `window.open`.
  bool wantsWindow = false;
  /// Neither the page's content nor the program asked for it; what remains is a file dropped on the page.
  bool isDropped = false;
};

enum class NavigationChoice {
  view,    ///< opens in the one view
  system,  ///< is handed to the system; the view stays where it is
  nothing, ///< is left alone
};

/// The one rule for every way a navigation can begin. Mail and telephone links go to the system, everything
/// else stays in the view on whatever host it lies. A window has to be on the web: any other is nothing to
/// load, or would run a script or read a file as if the program had asked. And a dropped file does not
/// replace the page.
NavigationChoice choose(const NavigationRequest& request);

} // namespace quorvel
