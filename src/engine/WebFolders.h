#pragma once

#include <string>

namespace quorvel {

/// Where the engine keeps what it keeps: absolute paths of folders that belong to this program alone.
struct WebFolders {
  std::string data;
  std::string cache;

  /// The user's own: `quorvel` below the XDG data and cache folders.
  static WebFolders ofUser();
};

} // namespace quorvel
