#pragma once

#include "startup/ProgramName.h"

#include <optional>
#include <string>
#include <vector>

namespace quorvel {

/// What a program says to its command line in place of starting: on the standard output what it was asked for
/// (status 0), on the error output what it objects to.
struct CommandLineAnswer {
  int status;
  std::string text;
};

/// The answer to these arguments; none where they let the program start. It takes few options and nothing
/// else: one sentence and status 2 tell of any other argument.
std::optional<CommandLineAnswer> answerTo(const ProgramName& program,
                                          const std::vector<std::string>& arguments);

/// Says the answer to what `main` was given, if there is one, and returns the status to end with. To be
/// called first of all; needs no display.
std::optional<int> answerCommandLine(const ProgramName& program, int argc, char** argv);

} // namespace quorvel
