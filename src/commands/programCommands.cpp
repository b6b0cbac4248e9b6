#include "commands/programCommands.h"

#include <utility>

namespace quorvel {

std::vector<Command> programCommands(ProgramActions actions) {
  return {{"shortcuts", "_Keyboard Shortcuts", "<Control>question", std::move(actions.showShortcuts)},
          {"about", "_About", "", std::move(actions.showAbout)},
          {"quit", "_Quit", "<Control>q", std::move(actions.quit)}};
}

} // namespace quorvel
