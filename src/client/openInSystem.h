#pragma once

#include <string>

namespace quorvel {

/// Hands an address to whatever the desktop names for its scheme. Returns at once; an address that nothing
/// handles is silently dropped.
void openInSystem(const std::string& address);

} // namespace quorvel
