#include "support/RealInput.h"

#include <gdk/x11/gdkx.h>
#include <gdkmm/surface.h>
#include <glibmm/spawn.h>
#include <gtkmm/native.h>
#include <stdexcept>

namespace quorvel::tests {
namespace {

void xdotool(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "xdotool");
  int status = 0;
  Glib::spawn_sync("", arguments, Glib::SpawnFlags::SEARCH_PATH, {}, nullptr, nullptr, &status);
  if (status != 0)
    throw std::runtime_error("xdotool failed");
}

} // namespace

void clickOn(Gtk::Widget& widget) {
  auto* native = widget.get_native();
  double x = 0, y = 0, surfaceX = 0, surfaceY = 0;
  widget.translate_coordinates(dynamic_cast<Gtk::Widget&>(*native), widget.get_width() / 2.0,
                               widget.get_height() / 2.0, x, y);
  native->get_surface_transform(surfaceX, surfaceY);
  const auto window = gdk_x11_surface_get_xid(native->get_surface()->gobj());
  xdotool({"mousemove", "--window", std::to_string(window), std::to_string(static_cast<int>(x + surfaceX)),
           std::to_string(static_cast<int>(y + surfaceY))});
  xdotool({"click", "1"});
}

void strikeKey(const std::string& name) {
  xdotool({"key", name});
}

void holdKey(const std::string& name) {
  xdotool({"keydown", name});
}

void releaseKey(const std::string& name) {
  xdotool({"keyup", name});
}

} // namespace quorvel::tests
