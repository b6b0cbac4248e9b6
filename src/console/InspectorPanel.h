#pragma once

#include "layout/stacks.h"
#include "workspace/WorkspaceStore.h"

namespace quorvel {

/// The console's right column: the section on screen, the workspace's counts, the first approvals and the
/// newest activity.
///
/// It only shows. It sets no width of its own and does not scroll. `store` outlives it.
class InspectorPanel : public VStack {
 public:
  explicit InspectorPanel(WorkspaceStore& store);
};

} // namespace quorvel
