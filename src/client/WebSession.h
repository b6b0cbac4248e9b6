#pragma once

#include "GObjectPointer.h"

#include <string>
#include <webkit/webkit.h>

namespace quorvel {

/// Where the engine keeps what it keeps: absolute paths of folders that belong to this program alone.
struct WebFolders {
  std::string data;
  std::string cache;

  /// The user's own: `quorvel` below the XDG data and cache folders.
  static WebFolders ofUser();
};

/// The engine's store of cookies, sign-ins and cached pages, kept across runs in folders only the user can
/// read.
///
/// Where a folder cannot be made (no home, read-only, full disk), everything is kept in memory and is gone
/// with the program.
class WebSession {
 public:
  explicit WebSession(const WebFolders& folders);

  WebKitNetworkSession* get() const { return session_.get(); }

 private:
  GObjectPointer<WebKitNetworkSession> session_;
};

} // namespace quorvel
