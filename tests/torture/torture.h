#pragma once

#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>

namespace quorvel::e2e {

/// Whether the whole torture was asked for, as `./dev torture` does. Otherwise it is a tenth of it, which
/// shows that the torture itself works and finds what is badly broken.
inline bool isWhole() {
  return std::getenv("QUORVEL_WHOLE_TORTURE");
}

/// How often to do what the whole torture does `all` times.
inline int rounds(int all) {
  return isWhole() ? all : all / 10;
}

/// Says what was measured, whatever the verdict.
template <class... Words>
void figure(const Words&... words) {
  ((std::cout << "[  FIGURE  ] ") << ... << words) << std::endl;
}

} // namespace quorvel::e2e
