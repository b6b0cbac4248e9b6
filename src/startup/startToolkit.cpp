#include "startup/startToolkit.h"

#include "startup/GraphicsEnvironment.h"
#include "startup/messageBuses.h"

#include <gtk/gtk.h>
#include <iostream>

namespace quorvel {
namespace {

/// The toolkit opens its own by Control with Shift and I or D, in any window of any program.
/// Kinds of windows made later inherit the answer; one that is no leaves the key to the page.
void keepDeveloperToolsShut() {
  const auto windows = static_cast<GtkWindowClass*>(g_type_class_ref(GTK_TYPE_WINDOW));
  windows->enable_debugging = +[](GtkWindow*, gboolean) -> gboolean { return FALSE; };
}

} // namespace

bool startToolkit(const ProgramName& program) {
  const GraphicsEnvironment graphics;
  graphics.apply();
  keepUsableBuses();
  g_set_prgname(program.identifier); // by which a desktop finds the icon of the window
  if (gtk_init_check()) {
    graphics.spareAnimations();
    keepDeveloperToolsShut();
    return true;
  }
  std::cerr << program.name << " needs a display to show its window on, and found none." << std::endl;
  return false;
}

} // namespace quorvel
