#pragma once

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace quorvel {

/// Ends the search with the input that broke what is expected of every input.
inline void expect(bool holds, std::string_view what) {
  if (holds)
    return;
  std::cerr << "This does not hold: " << what << std::endl;
  std::abort();
}

} // namespace quorvel
