#pragma once

#include "workspace/Record.h"
#include "workspace/RequestStatus.h"

namespace quorvel {

/// One queued piece of work.
struct RequestItem {
  std::string id;
  std::string title;
  std::string agent;  ///< display name of the agent that handles it
  std::string source; ///< where it came from
  RequestStatus status;
  std::string summary;
  double progress;         ///< 0.0 to 1.0
  std::string lastUpdated; ///< relative time as display text

  bool operator==(const RequestItem&) const = default;
  auto fields() const { return std::tie(id, title, agent, source, status, summary, progress, lastUpdated); }
};

} // namespace quorvel
