#include "startup/GraphicsEnvironment.h"

#include <algorithm>
#include <filesystem>
#include <glib.h>
#include <utility>

namespace quorvel {

namespace fs = std::filesystem;

GraphicsEnvironment::GraphicsEnvironment(std::string root) : root_(std::move(root)) {}

std::vector<GraphicsEnvironment::Variable> GraphicsEnvironment::variables() const {
  std::vector<Variable> result;
  // Without graphics hardware GL is emulated, which costs a third of the time to the first page and 40 % of
  // the memory. Toolkit and engine are told so too, or they would try it and complain.
  if (!hasRenderNode())
    result.insert(
        result.end(),
        {{"GDK_DEBUG", "gl-disable"}, {"GSK_RENDERER", "cairo"}, {"WEBKIT_DISABLE_COMPOSITING_MODE", "1"}});
  // On many desktops the accelerated renderer shows an empty page with this driver.
  if (hasNvidiaDriver())
    result.push_back({"WEBKIT_DISABLE_DMABUF_RENDERER", "1"});
  return result;
}

void GraphicsEnvironment::apply() const {
  for (const auto& [name, value] : variables())
    g_setenv(name.c_str(), value.c_str(), false);
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
