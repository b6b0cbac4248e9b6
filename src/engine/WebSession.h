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
  WebSession(const WebFolders& folders, DownloadKeeper::Owner downloads);

  WebKitNetworkSession* get() const { return session_.get(); }
  /// What its pages download.
  DownloadKeeper& downloads() { return downloads_; }

 private:
  GObjectPointer<WebKitNetworkSession> session_;
  DownloadKeeper downloads_;
};

} // namespace quorvel
