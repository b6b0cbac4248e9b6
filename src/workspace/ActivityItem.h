#pragma once

#include "vocabulary/AccentTone.h"
#include "workspace/Record.h"

namespace quorvel {

/// One entry of the activity feed.
struct ActivityItem {
  std::string id;
  std::string title;
  std::string detail;
  std::string timestamp; ///< relative time as display text
  AccentTone tone;

  bool operator==(const ActivityItem&) const = default;
  auto fields() const { return std::tie(id, title, detail, timestamp, tone); }
};

} // namespace quorvel
