#pragma once

#include "layout/LazyRows.h"
#include "layout/stacks.h"
#include "workspace/WorkspaceStore.h"

namespace quorvel {

class RequestRow;

/// Every request with its status, its progress and the path it has come. `store` outlives the view.
class RequestsView : public VStack {
 public:
  explicit RequestsView(WorkspaceStore& store);

 private:
  void refresh();

  LazyRows<RequestItem, RequestRow>* rows_;
};

} // namespace quorvel
