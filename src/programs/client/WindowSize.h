#pragma once

#include <optional>
#include <string>

namespace quorvel {

/// How large a window is, in points, when it does not fill the screen; and whether it does.
struct WindowSize {
  int width, height;
  bool isMaximized = false;
  bool operator==(const WindowSize&) const = default;
};

/// The file in which the size of the main window outlives the program: in the user's state folder, as it is
/// neither a preference nor anything the user made.
std::string windowSizeFile();

/// What the file holds; nothing where it is missing or makes no sense.
std::optional<WindowSize> readWindowSize(const std::string& file);

/// Replaces the file at once and whole, making its folder for the user alone. Where that cannot be done
/// everything stays as it was. A file that holds this size already is not touched.
void writeWindowSize(const std::string& file, const WindowSize& size);

} // namespace quorvel
