#include "ConsoleApplication.h"
#include "GraphicsEnvironment.h"

#include <iostream>

int main(int argc, char** argv) {
  quorvel::GraphicsEnvironment().apply();
  Glib::set_prgname(quorvel::ConsoleApplication::identifier); // by which a desktop knows the window
  if (!gtk_init_check()) {
    std::cerr << "Quorvel Console needs a display to show its window on, and found none." << std::endl;
    return 1;
  }
  return quorvel::ConsoleApplication::create()->run(argc, argv);
}
