#pragma once

#include "engine/Download.h"
#include "engine/GObjectPointer.h"

#include <functional>
#include <string>
#include <vector>
#include <webkit/webkit.h>

namespace quorvel {

/// Where downloads go: the user's download folder, or "Downloads" in the home folder where the desktop names
/// none.
std::string downloadFolder();

/// Has what a session's pages download put into the download folder, each file under a name of its own: the
/// engine by itself would replace a file of the same name. Of a download that comes to nothing, whether it
/// fails, is cancelled or the program ends, nothing is left; after a crash that is seen to at the next start.
/// The session has to outlive it.
class DownloadKeeper {
 public:
  struct Owner {
    /// Whether a download may start now; one that may not is dropped, and nobody hears of it.
    std::function<bool()> mayStart;
    /// Called when it has got a name, at each piece that arrives, and once when it has ended.
    std::function<void(const Download&)> onChange;
  };
  /// `record` is the file that tells the next start of what is under way; without one nothing is kept of it.
  DownloadKeeper(WebKitNetworkSession* session, std::string record, Owner owner);
  ~DownloadKeeper();
  DownloadKeeper(const DownloadKeeper&) = delete;
  DownloadKeeper& operator=(const DownloadKeeper&) = delete;

  /// Whether anything is being downloaded.
  bool isBusy() const { return !watched_.empty(); }
  /// Breaks off a download; one that has ended stays as it is.
  void cancel(const std::string& id);

 private:
  struct Watched {
    GObjectPointer<WebKitDownload> engines;
    Download seen;
  };

  void start(WebKitDownload* download);
  void decideDestination(WebKitDownload* download, const char* suggestedName);
  void noteProgress(WebKitDownload* download);
  void noteFailure(WebKitDownload* download, const GError* error);
  void end(WebKitDownload* download, Download::State state);
  std::vector<Watched>::iterator find(WebKitDownload* download);
  void write() const;

  WebKitNetworkSession* session_;
  std::string record_;
  Owner owner_;
  std::vector<Watched> watched_;
  int count_ = 0; // of all that ever started
};

} // namespace quorvel
