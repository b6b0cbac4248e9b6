#include "startup/commandLine.h"

#include <iostream>
#include <span>

namespace quorvel {
namespace {

constexpr int usageError = 2;

std::string help(const ProgramName& program) {
  return std::string("Usage: ") + program.command + " [OPTION]\n\n" + program.summary +
         "\n\n"
         "  -h, --help     show this help and end\n"
         "      --version  show name and version and end\n";
}

CommandLineAnswer objection(const ProgramName& program, const std::string& argument) {
  const std::string command = program.command;
  const auto what = argument.starts_with('-') ? "is no option that it knows" : "is not an option";
  return {usageError, command + ": \"" + argument + "\" " + what + "; " + command + " --help lists them.\n"};
}

} // namespace

std::optional<CommandLineAnswer> answerTo(const ProgramName& program,
                                          const std::vector<std::string>& arguments) {
  for (const auto& argument : arguments) {
    if (argument == "--help" || argument == "-h")
      return CommandLineAnswer{0, help(program)};
    if (argument == "--version")
      return CommandLineAnswer{0, std::string(program.name) + " " QUORVEL_VERSION "\n"};
    // With this the desktop's message bus starts a program; the toolkit answers it.
    if (argument != "--gapplication-service")
      return objection(program, argument);
  }
  return std::nullopt;
}

std::optional<int> answerCommandLine(const ProgramName& program, int argc, char** argv) {
  const std::span given(argv, static_cast<std::size_t>(argc));
  const auto answer = answerTo(program, {given.begin() + (given.empty() ? 0 : 1), given.end()});
  if (!answer)
    return std::nullopt;
  (answer->status == 0 ? std::cout : std::cerr) << answer->text << std::flush;
  return answer->status;
}

} // namespace quorvel
