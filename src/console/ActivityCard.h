#pragma once

#include "layout/stacks.h"
#include "workspace/WorkspaceStore.h"

namespace quorvel {

/// The first four entries of the activity feed, which are its newest. `store` outlives the card.
class ActivityCard : public VStack {
 public:
  explicit ActivityCard(WorkspaceStore& store);
};

} // namespace quorvel
