#pragma once

#include <string_view>

namespace quorvel {

/// The secure web origin of the hosted service: no port, no path, no trailing slash.
///
/// The only place that names it. "example" is a reserved domain, so nobody else can own this one; a vendor's
/// build puts the real origin here.
inline constexpr std::string_view serviceOrigin = "https://app.quorvel.example";

/// The origin's host name.
inline constexpr std::string_view serviceHost = serviceOrigin.substr(std::string_view("https://").size());

} // namespace quorvel
