#pragma once

#include "layout/stacks.h"
#include "workspace/WorkspaceStore.h"

namespace quorvel {

/// The agent team: a card for every agent, saying what it is for, what it is doing and how busy it is.
/// `store` outlives it.
class AgentsView : public VStack {
 public:
  explicit AgentsView(WorkspaceStore& store);
};

} // namespace quorvel
