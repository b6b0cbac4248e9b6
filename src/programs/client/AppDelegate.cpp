#include "programs/client/AppDelegate.h"

#include "vocabulary/fatalError.h"

#include <gtkmm/application.h>
#include <gtkmm/window.h>

namespace quorvel {

void AppDelegate::applicationDidFinishLaunching() {
  const auto application = std::dynamic_pointer_cast<Gtk::Application>(Gio::Application::get_default());
  if (!application)
    fatalError("Unexpectedly found nil while implicitly unwrapping an Optional value", "AppDelegate",
               __LINE__);
  for (auto* window : application->get_windows())
    if (!window->get_transient_for())
      window->present();
}

} // namespace quorvel
