#include "engine/NavigationPolicy.h"

#include <glib.h>
#include <string_view>

namespace quorvel {

NavigationChoice choose(const NavigationRequest& request) {
  const char* lowerCaseScheme = g_uri_peek_scheme(request.address.c_str());
  const std::string_view scheme = lowerCaseScheme ? lowerCaseScheme : "";
  if (scheme == "mailto" || scheme == "tel")
    return NavigationChoice::system;
  if (request.wantsWindow && (request.address.empty() || request.address == "about:blank"))
    return NavigationChoice::nothing;
  // A window's address is loaded in the program's name, which opens doors that are shut to a page.
  if (request.wantsWindow && (scheme == "javascript" || scheme == "file"))
    return NavigationChoice::nothing;
  if (request.isDropped && scheme == "file")
    return NavigationChoice::nothing;
  return NavigationChoice::view;
}

} // namespace quorvel
