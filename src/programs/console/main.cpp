#include "programs/console/ConsoleApplication.h"
#include "startup/startToolkit.h"

#include <cstdlib>

int main(int argc, char** argv) {
  if (!quorvel::startToolkit({quorvel::ConsoleApplication::identifier, "Quorvel Console"}))
    return EXIT_FAILURE;
  return quorvel::ConsoleApplication::create()->run(argc, argv);
}
