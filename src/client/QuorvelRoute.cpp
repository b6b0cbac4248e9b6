#include "client/QuorvelRoute.h"

#include "client/ServiceOrigin.h"
#include "vocabulary/fatalError.h"

#include <array>
#include <glib.h>

namespace quorvel {
namespace {

struct RouteRow {
  std::string_view path;
  std::string_view marker;
  bool refusesFragment;
  unsigned line;

  constexpr RouteRow(std::string_view itsPath, std::string_view itsMarker, bool itRefusesFragment = false,
                     unsigned itsLine = __builtin_LINE())
      : path(itsPath), marker(itsMarker), refusesFragment(itRefusesFragment), line(itsLine) {}
};

constexpr std::array rows{
    RouteRow{"/agent.html?source=mac_app", "/agent.html", true},
    RouteRow{"/agent.html?source=mac_app#connectorsCenter", "#connectorsCenter"},
    RouteRow{"/agent.html?source=mac_app#browserWorkspace", "#browserWorkspace"},
    RouteRow{"/agent.html?source=mac_app#voiceAgentCard", "#voiceAgentCard"},
    RouteRow{"/pricing.html", "/pricing.html"},
    RouteRow{"/support.html", "/support.html"},
};

constexpr const RouteRow& row(QuorvelRoute route) {
  return rows[static_cast<std::size_t>(route)];
}

bool contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

} // namespace

std::string url(QuorvelRoute route) {
  return parsedAddress(std::string(serviceOrigin).append(row(route).path), row(route).line);
}

bool matches(QuorvelRoute route, std::string_view address) {
  return contains(address, row(route).marker) && !(row(route).refusesFragment && contains(address, "#"));
}

std::string parsedAddress(const std::string& literal, unsigned line) {
  if (!g_uri_is_valid(literal.c_str(), G_URI_FLAGS_NONE, nullptr))
    fatalError("Unexpectedly found nil while unwrapping an Optional value", "DesktopBrowserModel", line);
  return literal;
}

} // namespace quorvel
