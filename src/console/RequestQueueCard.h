#pragma once

#include "layout/stacks.h"
#include "workspace/WorkspaceStore.h"

namespace quorvel {

/// The first three requests, with a way to the rest of them. `store` outlives the card.
class RequestQueueCard : public VStack {
 public:
  explicit RequestQueueCard(WorkspaceStore& store);
};

} // namespace quorvel
