#pragma once

#include "layout/stacks.h"
#include "workspace/WorkspaceStore.h"

namespace quorvel {

/// Every request with its status, its progress and the path it has come. `store` outlives the view.
class RequestsView : public VStack {
 public:
  explicit RequestsView(WorkspaceStore& store);
};

} // namespace quorvel
