#include "vocabulary/fatalError.h"

#include <cstdlib>
#include <iostream>

namespace quorvel {

void fatalError(std::string_view text, std::string_view file, unsigned line) {
  std::cerr << file << ':' << line << ": Fatal error: " << text << std::endl;
  std::abort();
}

} // namespace quorvel
