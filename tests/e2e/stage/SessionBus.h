#pragma once

#include "e2e/stage/ChildProcess.h"

#include <filesystem>

namespace quorvel::e2e {

/// The session bus of all tests of this process, with the services of accessibility. The environment names
/// it, and it ends with this object.
class SessionBus {
 public:
  /// The bus has `folder`, which is made for it, to itself. Throws std::runtime_error when it does not start.
  explicit SessionBus(const std::filesystem::path& folder);

 private:
  ChildProcess process_;
};

} // namespace quorvel::e2e
