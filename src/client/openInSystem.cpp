#include "client/openInSystem.h"

#include <gdkmm/applaunchcontext.h>
#include <gdkmm/display.h>
#include <giomm/appinfo.h>

namespace quorvel {

void openInSystem(const std::string& address) {
  // Not gtk_show_uri(): that puts up a dialog when there is no handler.
  const Glib::RefPtr<Gio::AppLaunchContext> context = Gdk::Display::get_default()->get_app_launch_context();
  Gio::AppInfo::launch_default_for_uri_async(address, context);
}

} // namespace quorvel
