#pragma once

#include "layout/stacks.h"
#include "programs/client/commands.h"

namespace quorvel {

/// Every command that has a key, in the order of the menus.
class ShortcutsView : public VStack {
 public:
  explicit ShortcutsView(const Commands& commands);
};

} // namespace quorvel
