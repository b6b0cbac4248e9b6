#pragma once

#include "engine/DownloadKeeper.h"
#include "engine/GObjectPointer.h"
#include "engine/WebFolders.h"

#include <webkit/webkit.h>

namespace quorvel {

/// The engine's store of cookies, sign-ins and cached pages, kept across runs in folders only the user can
/// read.
///
/// Where a folder cannot be made (no home, read-only, full disk), everything is kept in memory and is gone
/// with the program.
class WebSession {
 public:
  /// A page's download starts if `mayDownload` says so.
  WebSession(const WebFolders& folders, std::function<bool()> mayDownload);

  WebKitNetworkSession* get() const { return session_.get(); }

 private:
  GObjectPointer<WebKitNetworkSession> session_;
  DownloadKeeper downloads_;
};

} // namespace quorvel
