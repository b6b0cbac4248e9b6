#include "programs/client/QuorvelApp.h"
#include "startup/lastWords.h"
#include "startup/startToolkit.h"

#include <cstdlib>

int main(int argc, char** argv) {
  quorvel::explainFatalErrors();
  if (!quorvel::startToolkit({quorvel::QuorvelApp::identifier, "Quorvel"}))
    return EXIT_FAILURE;
  return Glib::make_refptr_for_instance(new quorvel::QuorvelApp)->run(argc, argv);
}
