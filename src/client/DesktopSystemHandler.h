#pragma once

#include "SystemHandler.h"

namespace quorvel {

/// The desktop's own table of default applications. An address that nothing handles is silently dropped.
class DesktopSystemHandler final : public SystemHandler {
 public:
  void open(const std::string& address) override;
};

} // namespace quorvel
