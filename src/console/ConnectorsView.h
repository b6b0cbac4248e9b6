#pragma once

#include "layout/stacks.h"
#include "workspace/WorkspaceStore.h"

namespace quorvel {

/// The outside apps that agents may use: a card for each, with a switch that connects or disconnects it.
/// `store` outlives it.
class ConnectorsView : public VStack {
 public:
  explicit ConnectorsView(WorkspaceStore& store);
};

} // namespace quorvel
