#include "startup/GraphicsEnvironment.h"

#include <algorithm>
#include <epoxy/egl.h>
#include <filesystem>
#include <gtk/gtk.h>
#include <utility>

namespace quorvel {

namespace fs = std::filesystem;

unsigned GraphicsEnvironment::runningToolkit() {
  return gtk_get_minor_version();
}

GraphicsEnvironment::GraphicsEnvironment(std::string root, unsigned toolkit)
    : root_(std::move(root)), toolkit_(toolkit) {}

std::vector<GraphicsEnvironment::Variable> GraphicsEnvironment::variables() const {
  std::vector<Variable> result;
  if (!hasRenderNode())
    result = withoutGraphicsHardware();
  // On many desktops the accelerated renderer shows an empty page with this driver.
  if (hasNvidiaDriver())
    result.push_back({"WEBKIT_DISABLE_DMABUF_RENDERER", "1"});
  return result;
}

void GraphicsEnvironment::apply() const {
  for (const auto& [name, value] : variables())
    g_setenv(name.c_str(), value.c_str(), false);
}

// EGL looks for drivers once in a process, at the first question, and this one comes while it is told of
// none. The engine's own would come in the middle of the start, and load a driver for nothing: it gets no
// display from EGL, and needs none while it puts no pages together here.
void GraphicsEnvironment::spareDriver() const {
  constexpr auto* drivers = "__EGL_VENDOR_LIBRARY_FILENAMES";
  if (hasRenderNode() || !isGlOff() || g_getenv(drivers) || !epoxy_has_egl())
    return;
  g_setenv(drivers, "/dev/null", false);
  eglQueryString(EGL_NO_DISPLAY, EGL_EXTENSIONS);
  g_unsetenv(drivers);
}

void GraphicsEnvironment::spareAnimations() const {
  if (!hasRenderNode())
    g_object_set(gtk_settings_get_default(), "gtk-overlay-scrolling", FALSE, nullptr);
}

// Without graphics hardware GL and Vulkan are emulated, which costs a third of the time to the first page and
// 40 % of the memory. Toolkit and engine are told so too, or they would try it and complain. GTK 4.16 gave
// this a variable of its own, and complains of the older words. The driver that emulates would keep what it
// compiles on disk, in fifty files.
std::vector<GraphicsEnvironment::Variable> GraphicsEnvironment::withoutGraphicsHardware() const {
  const Variable off = toolkit_ >= 16 ? Variable{"GDK_DISABLE", "gl:vulkan"}
                                      : Variable{"GDK_DEBUG", "gl-disable:vulkan-disable"};
  return {off,
          {"GSK_RENDERER", "cairo"},
          {"WEBKIT_DISABLE_COMPOSITING_MODE", "1"},
          {"MESA_SHADER_CACHE_DISABLE", "true"}};
}

/// Whether the user has left it so.
bool GraphicsEnvironment::isGlOff() const {
  return std::ranges::all_of(withoutGraphicsHardware(), [](const Variable& variable) {
    const auto* value = g_getenv(variable.name.c_str());
    return value && value == variable.value;
  });
}

bool GraphicsEnvironment::hasRenderNode() const {
  std::error_code noFolder;
  const fs::directory_iterator nodes(fs::path(root_) / "dev/dri", noFolder);
  return std::any_of(begin(nodes), end(nodes),
                     [](const auto& node) { return node.path().filename().string().starts_with("renderD"); });
}

bool GraphicsEnvironment::hasNvidiaDriver() const {
  std::error_code unreadable;
  return fs::exists(fs::path(root_) / "proc/driver/nvidia/version", unreadable) ||
         fs::exists(fs::path(root_) / "sys/module/nvidia", unreadable);
}

} // namespace quorvel
