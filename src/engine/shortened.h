#pragma once

#include <string>

namespace quorvel {

// In letters: more than anybody reads, and less than it costs anything to lay out.
inline constexpr long whereTextScrolls = 2'000;
inline constexpr long whereTextGrows = 500; // a window as high as itself, also where each letter is a line

/// What a page says, at the most so many letters of it and then an ellipsis. Empty for no text at all.
std::string shortened(const char* text, long longest);

} // namespace quorvel
