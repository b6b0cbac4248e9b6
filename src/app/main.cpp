#include "GraphicsEnvironment.h"
#include "QuorvelApp.h"
#include "engineFailure.h"

#include <glibmm/miscutils.h>
#include <iostream>

int main(int argc, char** argv) {
  quorvel::explainEngineFailure();
  quorvel::GraphicsEnvironment().apply();
  Glib::set_prgname(quorvel::QuorvelApp::identifier); // by which a desktop finds the icon of the window
  if (!gtk_init_check()) {
    std::cerr << "Quorvel needs a display to show its window on, and found none." << std::endl;
    return 1;
  }
  return Glib::make_refptr_for_instance(new quorvel::QuorvelApp)->run(argc, argv);
}
