#pragma once

#include "layout/stacks.h"
#include "workspace/WorkspaceStore.h"

namespace quorvel {

/// The console's left column: the sections to choose from, the first agents and a note on what is going on.
///
/// It sets no width of its own and scrolls below its head. `store` outlives it.
class SidebarView : public VStack {
 public:
  explicit SidebarView(WorkspaceStore& store);
};

} // namespace quorvel
