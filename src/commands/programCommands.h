#pragma once

#include "commands/Command.h"

#include <vector>

namespace quorvel {

/// What every program can be told about itself.
struct ProgramActions {
  std::function<void()> showShortcuts, showAbout, quit;
};

/// The commands for that, with the same titles and keys in every program.
std::vector<Command> programCommands(ProgramActions actions);

} // namespace quorvel
