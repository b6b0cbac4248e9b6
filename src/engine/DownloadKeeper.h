#pragma once

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
/// fails or the program ends, nothing is left; after a crash that is seen to at the next start. The session
/// has to outlive it.
class DownloadKeeper {
 public:
  /// `record` is the file that tells the next start of what is under way; without one nothing is kept of it.
  /// A download for which `mayStart` says no is dropped.
  DownloadKeeper(WebKitNetworkSession* session, std::string record, std::function<bool()> mayStart);
  ~DownloadKeeper();
  DownloadKeeper(const DownloadKeeper&) = delete;
  DownloadKeeper& operator=(const DownloadKeeper&) = delete;

 private:
  void start(WebKitDownload* download);
  void decideDestination(WebKitDownload* download, const char* suggestedName);
  void end(WebKitDownload* download);
  void forgetFailed(WebKitDownload* download);
  void write() const;

  WebKitNetworkSession* session_;
  std::string record_;
  std::function<bool()> mayStart_;
  std::vector<WebKitDownload*> watched_; // each holds a reference
};

} // namespace quorvel
