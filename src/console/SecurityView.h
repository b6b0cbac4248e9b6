#pragma once

#include "layout/stacks.h"
#include "preferences/Preferences.h"
#include "workspace/WorkspaceStore.h"

namespace quorvel {

/// Trust controls: four of the user's switches, beside the approvals and where they stand. The switches are
/// remembered and change nothing else; the list follows the workspace alone. Both models outlive it.
class SecurityView : public VStack {
 public:
  SecurityView(WorkspaceStore& store, Preferences& preferences);
};

} // namespace quorvel
