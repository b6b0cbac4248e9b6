#include "programs/client/QuorvelApp.h"
#include "startup/commandLine.h"
#include "startup/lastWords.h"
#include "startup/startToolkit.h"
#include "startup/transport.h"

#include <cstdlib>

int main(int argc, char** argv) {
  constexpr quorvel::ProgramName program{quorvel::QuorvelApp::identifier, "Quorvel", "quorvel",
                                         "The desktop client of the Quorvel service."};
  if (const auto status = quorvel::answerCommandLine(program, argc, argv))
    return *status;
  quorvel::explainFatalErrors();
  quorvel::refuseOutdatedTransport();
  if (!quorvel::startToolkit(program))
    return EXIT_FAILURE;
  return Glib::make_refptr_for_instance(new quorvel::QuorvelApp)->run(argc, argv);
}
