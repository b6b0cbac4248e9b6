#pragma once

#include <string>

namespace quorvel {

/// Name and version of the web engine that is installed, which may be newer than the one built against.
std::string engineVersion();

} // namespace quorvel
