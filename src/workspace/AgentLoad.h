#pragma once

#include "vocabulary/Enumeration.h"

namespace quorvel {

/// How busy an agent is. It has no tone of its own: an agent keeps the agent's colour whatever its load.
enum class AgentLoad { idle, active, drafting, review };

template <>
struct EnumerationTable<AgentLoad> {
  struct Row {
    std::string_view rawValue;
  };
  static constexpr PerCase<AgentLoad, Row> rows{Row{"Idle"}, Row{"Active"}, Row{"Drafting"}, Row{"Review"}};
};

} // namespace quorvel
