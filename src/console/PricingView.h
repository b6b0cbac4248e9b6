#pragma once

#include "layout/stacks.h"
#include "workspace/WorkspaceStore.h"

namespace quorvel {

/// The plans, a card each, and below them how the product compares with two other kinds of tool. Choosing a
/// plan is not decided yet: the buttons do nothing. `store` outlives it.
class PricingView : public VStack {
 public:
  explicit PricingView(WorkspaceStore& store);
};

} // namespace quorvel
