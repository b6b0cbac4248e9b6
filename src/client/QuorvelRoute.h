#pragma once

#include <string>
#include <string_view>

namespace quorvel {

/// The service's destinations that the client opens directly, in the order of the sidebar.
enum class QuorvelRoute { agent, connectors, browserWorkspace, voice, pricing, support };

/// The route's absolute address on the service origin, parsed anew on each call. An address that does not
/// parse is a mistake in the table and ends the program.
std::string url(QuorvelRoute route);

/// Whether `address` counts as the route's page. Compares text only, case and all, and no host; each route is
/// asked on its own, so an address can belong to none of them or to several.
bool matches(QuorvelRoute route, std::string_view address);

/// `literal` itself when it is an absolute address; otherwise ends the program, naming `line`.
std::string parsedAddress(const std::string& literal, unsigned line);

} // namespace quorvel
