#include "startup/startToolkit.h"

#include "startup/GraphicsEnvironment.h"
#include "startup/messageBuses.h"

#include <gtk/gtk.h>
#include <iostream>

namespace quorvel {
namespace {

/// The toolkit opens its own by Control with Shift and I or D, in any window of any program.
void keepDeveloperToolsShut() {
  g_type_class_ref(GTK_TYPE_WINDOW);
  const auto asked = g_signal_lookup("enable-debugging", GTK_TYPE_WINDOW);
  const auto stop = +[](GSignalInvocationHint* hint, guint, const GValue* values, gpointer) -> gboolean {
    g_signal_stop_emission(g_value_get_object(values), hint->signal_id, hint->detail);
    return TRUE; // the next time, too
  };
  g_signal_add_emission_hook(asked, 0, stop, nullptr, nullptr);
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
