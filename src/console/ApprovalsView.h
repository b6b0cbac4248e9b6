#pragma once

#include "layout/stacks.h"
#include "workspace/WorkspaceStore.h"

namespace quorvel {

/// Every action that waits for the owner's decision, with the checks made so far and the two decisions.
/// `store` outlives the view.
class ApprovalsView : public VStack {
 public:
  explicit ApprovalsView(WorkspaceStore& store);
};

} // namespace quorvel
