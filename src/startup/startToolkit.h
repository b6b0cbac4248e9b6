#pragma once

#include "startup/ProgramName.h"

namespace quorvel {

/// What every program of this project does first: tells the toolkit about the machine's graphics and the
/// desktop whose windows these are, and starts the toolkit, which has no look until `installStyle()` gives it
/// one. False, with one sentence on the error output, where there is no display to show a window on. Call it
/// once, before there is a second thread.
bool startToolkit(const ProgramName& program);

} // namespace quorvel
