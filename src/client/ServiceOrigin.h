#pragma once

#include <string_view>

namespace quorvel {

/// The secure web origin of the hosted service: no port, no path, no trailing slash.
///
/// Which one it is, the build says: see cmake/QuorvelOrigin.cmake.
inline constexpr std::string_view serviceOrigin = QUORVEL_ORIGIN;

/// The origin's host name.
inline constexpr std::string_view serviceHost = serviceOrigin.substr(std::string_view("https://").size());

} // namespace quorvel
