#pragma once

#include "vocabulary/AccentTone.h"
#include "workspace/Record.h"

namespace quorvel {

/// One outside app the agents may use.
struct ConnectorItem {
  std::string id;
  std::string name;
  std::string category;
  std::string symbol; ///< its icon's name
  bool isConnected;
  std::string lastSync; ///< relative time or a state as display text
  AccentTone tone;

  bool operator==(const ConnectorItem&) const = default;
  auto fields() const { return std::tie(id, name, category, symbol, isConnected, lastSync, tone); }
};

} // namespace quorvel
