#pragma once

#include "workspace/ApprovalState.h"
#include "workspace/Record.h"

namespace quorvel {

/// One action held for a person's decision.
struct ApprovalItem {
  std::string id;
  std::string title;
  std::string agent;  ///< display name of the agent that asks
  std::string source; ///< the apps involved
  std::string summary;
  std::string risk;               ///< the kind of exposure
  std::vector<std::string> steps; ///< the checks already done, then the held action
  ApprovalState state;

  bool operator==(const ApprovalItem&) const = default;
  auto fields() const { return std::tie(id, title, agent, source, summary, risk, steps, state); }
};

} // namespace quorvel
