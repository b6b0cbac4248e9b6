#pragma once

#include "layout/stacks.h"

#include <string>

namespace quorvel {

/// A lock, which is decoration, and an address on one line, read-only.
///
/// Where there is not room for all of the address it is shortened in the middle of what follows the host. To
/// the accessibility tree the address is one label.
class AddressField : public HStack {
 public:
  AddressField();

  /// Shows the address as `displayedAddress()` says.
  void show(const std::string& address);

 private:
  class Line;
  Line& line_;
};

} // namespace quorvel
