#include "programs/console/ConsoleApplication.h"
#include "startup/commandLine.h"
#include "startup/startToolkit.h"

#include <cstdlib>

int main(int argc, char** argv) {
  constexpr quorvel::ProgramName program{quorvel::ConsoleApplication::identifier, "Quorvel Console",
                                         "quorvel-console", "The workspace console of Quorvel."};
  if (const auto status = quorvel::answerCommandLine(program, argc, argv))
    return *status;
  if (!quorvel::startToolkit(program))
    return EXIT_FAILURE;
  return quorvel::ConsoleApplication::create()->run(argc, argv);
}
