#pragma once

#include <string>

namespace quorvel {

/// Opens addresses outside the program.
class SystemHandler {
 public:
  virtual ~SystemHandler() = default;
  /// Hands the address to whatever the user has chosen for its scheme. Returns at once; nothing tells whether
  /// anything took it.
  virtual void open(const std::string& address) = 0;
};

} // namespace quorvel
