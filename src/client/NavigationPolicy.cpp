#include "NavigationPolicy.h"

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
  if (request.isDropped && scheme == "file")
    return NavigationChoice::nothing;
  return NavigationChoice::view;
}

} // namespace quorvel
