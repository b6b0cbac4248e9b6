#pragma once

#include <string_view>

namespace quorvel {

/// Stops the program over a mistake in its own code: one line on the error output that names the place, then
/// `abort()`. Never for anything that a user, a page or the system can bring about.
[[noreturn]] void fatalError(std::string_view text, std::string_view file, unsigned line);

} // namespace quorvel
