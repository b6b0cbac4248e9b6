#pragma once

#include "commands/CommandGroup.h"
#include "commands/SecondaryWindow.h"
#include "layout/stacks.h"

namespace quorvel {

/// Commands below a heading.
struct CommandBlock {
  const char* heading;
  const CommandGroup& commands;
};

/// Every command that has a key, in the order of the menus.
class ShortcutsView : public VStack {
 public:
  explicit ShortcutsView(std::initializer_list<CommandBlock> blocks);
};

/// A window with that.
std::unique_ptr<SecondaryWindow> makeShortcutsWindow(std::initializer_list<CommandBlock> blocks);

} // namespace quorvel
