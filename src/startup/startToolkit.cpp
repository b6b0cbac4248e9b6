#include "startup/startToolkit.h"

#include "startup/GraphicsEnvironment.h"
#include "startup/messageBuses.h"

#include <gtk/gtk.h>
#include <iostream>

namespace quorvel {

bool startToolkit(const ProgramName& program) {
  GraphicsEnvironment().apply();
  keepUsableBuses();
  g_set_prgname(program.identifier); // by which a desktop finds the icon of the window
  if (gtk_init_check())
    return true;
  std::cerr << program.name << " needs a display to show its window on, and found none." << std::endl;
  return false;
}

} // namespace quorvel
