#pragma once

#include "vocabulary/AccentTone.h"
#include "workspace/AgentLoad.h"
#include "workspace/Record.h"

namespace quorvel {

/// One agent of the team.
struct AgentProfile {
  std::string id; ///< stable short key
  std::string name;
  std::string shortName;   ///< one word
  std::string focus;       ///< what the agent covers
  std::string currentWork; ///< a sentence on what it is doing now
  std::string output;      ///< its current deliverable
  AgentLoad load;
  AccentTone tone;
  std::string signal; ///< a short metric or status text

  bool operator==(const AgentProfile&) const = default;
  auto fields() const {
    return std::tie(id, name, shortName, focus, currentWork, output, load, tone, signal);
  }
};

} // namespace quorvel
