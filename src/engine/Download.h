#pragma once

#include <cstdint>
#include <string>

namespace quorvel {

/// A file that a page downloads, as it stands now.
struct Download {
  enum class State {
    underWay,
    done,
    failed,
    cancelled, ///< by the owner
  };
  std::string id = {};
  std::string name = {}; ///< of the file; it hides nothing
  std::string path = {}; ///< of the file; empty where it came to none
  State state = State::underWay;
  std::uint64_t received = 0; ///< in bytes
  std::uint64_t expected = 0; ///< in bytes, 0 where the server does not say

  bool operator==(const Download&) const = default;
};

} // namespace quorvel
