#include "programs/client/WindowSize.h"

#include "preferences/wholeFiles.h"

#include <glibmm/keyfile.h>
#include <glibmm/miscutils.h>

namespace quorvel {
namespace {

constexpr auto group = "Window", widthKey = "Width", heightKey = "Height", maximizedKey = "Maximized";

/// No display is larger; a window that asks for more may not be shown at all.
constexpr int greatestLength = 16'384;

bool isLength(int points) {
  return points > 0 && points <= greatestLength;
}

} // namespace

std::string windowSizeFile() {
  return Glib::build_filename(g_get_user_state_dir(), "quorvel", "window.ini");
}

std::optional<WindowSize> readWindowSize(const std::string& file) try {
  auto keys = Glib::KeyFile::create();
  keys->load_from_data(contentsOf(file).value_or(""));
  const WindowSize size{keys->get_integer(group, widthKey), keys->get_integer(group, heightKey),
                        keys->get_boolean(group, maximizedKey)};
  return isLength(size.width) && isLength(size.height) ? std::optional(size) : std::nullopt;
} catch (const Glib::Error&) {
  return std::nullopt;
}

void writeWindowSize(const std::string& file, const WindowSize& size) {
  if (readWindowSize(file) == size)
    return;
  auto keys = Glib::KeyFile::create();
  keys->set_integer(group, widthKey, size.width);
  keys->set_integer(group, heightKey, size.height);
  keys->set_boolean(group, maximizedKey, size.isMaximized);
  g_mkdir_with_parents(Glib::path_get_dirname(file).c_str(), 0700);
  replaceFile(file, keys->to_data());
}

} // namespace quorvel
