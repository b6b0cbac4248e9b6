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

/// As it starts the toolkit would read its light theme, in which no window of ours is drawn; the right one is
/// read when it is asked to be dark. What the user names is the user's.
bool startWithoutTheme() {
  constexpr auto* theme = "GTK_THEME";
  const bool isUsers = g_getenv(theme);
  g_setenv(theme, "Empty", false);
  const bool hasStarted = gtk_init_check();
  if (hasStarted)
    gtk_settings_get_default();
  if (!isUsers)
    g_unsetenv(theme);
  return hasStarted;
}

} // namespace

bool startToolkit(const ProgramName& program) {
  const GraphicsEnvironment graphics;
  graphics.apply();
  graphics.spareDriver();
  keepUsableBuses();
  g_set_prgname(program.identifier); // by which a desktop finds the icon of the window
  if (startWithoutTheme()) {
    graphics.spareAnimations();
    keepDeveloperToolsShut();
    return true;
  }
  std::cerr << program.name << " needs a display to show its window on, and found none." << std::endl;
  return false;
}

} // namespace quorvel
