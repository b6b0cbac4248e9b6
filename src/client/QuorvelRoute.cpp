#include "client/QuorvelRoute.h"

#include "client/ServiceOrigin.h"
#include "vocabulary/Enumeration.h"
#include "vocabulary/fatalError.h"

#include <glib.h>

namespace quorvel {
namespace {

/// Where a route leads and how its page is told from others.
struct Address {
  std::string_view path;
  std::string_view marker;
  bool refusesFragment;
  unsigned line;

  constexpr Address(std::string_view itsPath, std::string_view itsMarker, bool itRefusesFragment = false,
                    unsigned itsLine = __builtin_LINE())
      : path(itsPath), marker(itsMarker), refusesFragment(itRefusesFragment), line(itsLine) {}
};

constexpr PerCase<QuorvelRoute, Address> addresses{
    Address{"/agent.html?source=mac_app", "/agent.html", true},
    Address{"/agent.html?source=mac_app#connectorsCenter", "#connectorsCenter"},
    Address{"/agent.html?source=mac_app#browserWorkspace", "#browserWorkspace"},
    Address{"/agent.html?source=mac_app#voiceAgentCard", "#voiceAgentCard"},
    Address{"/pricing.html", "/pricing.html"},
    Address{"/support.html", "/support.html"},
};

bool contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

} // namespace

std::string url(QuorvelRoute route) {
  const auto& address = addresses[route];
  return parsedAddress(std::string(serviceOrigin).append(address.path), address.line);
}

bool matches(QuorvelRoute route, std::string_view address) {
  const auto& [path, marker, refusesFragment, line] = addresses[route];
  return contains(address, marker) && !(refusesFragment && contains(address, "#"));
}

std::string parsedAddress(const std::string& literal, unsigned line) {
  if (!g_uri_is_valid(literal.c_str(), G_URI_FLAGS_NONE, nullptr))
    fatalError("Unexpectedly found nil while unwrapping an Optional value", "DesktopBrowserModel", line);
  return literal;
}

} // namespace quorvel
