#include "engine/NavigationPolicy.h"

#include <algorithm>
#include <glib.h>
#include <string_view>

namespace quorvel {
namespace {

/// In lower case; empty where there is none or one longer than any that means something here. The library's
/// own function for this keeps every scheme it has ever seen, and a page can think of many.
std::string schemeOf(std::string_view address) {
  constexpr std::size_t longest = 32;
  const auto end = address.substr(0, longest).find(':');
  std::string scheme(address.substr(0, end == address.npos ? 0 : end));
  std::ranges::transform(scheme, scheme.begin(), g_ascii_tolower);
  return scheme;
}

} // namespace

NavigationChoice choose(const NavigationRequest& request) {
  const auto scheme = schemeOf(request.address);
  if (scheme == "mailto" || scheme == "tel")
    return NavigationChoice::system;
  // A window's address is loaded in the program's name, which opens doors that are shut to a page.
  if (request.wantsWindow && scheme != "https" && scheme != "http")
    return NavigationChoice::nothing;
  if (request.isDropped && scheme == "file")
    return NavigationChoice::nothing;
  return NavigationChoice::view;
}

} // namespace quorvel
