#include "engine/DownloadKeeper.h"

#include "engine/engineTexts.h"
#include "engine/reserveFile.h"

#include <fstream>
#include <glib/gstdio.h>
#include <glibmm/fileutils.h>
#include <glibmm/miscutils.h>
#include <utility>

namespace quorvel {
namespace {

/// The engine writes into a file beside the one it was given, and puts it in its place at the end.
constexpr auto partSuffix = ".wkdownload";

/// What there is of a download that did not come to its end. A file that has content is the user's.
void removeTraces(const std::string& path) {
  GStatBuf status{};
  if (g_lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size == 0)
    g_unlink(path.c_str());
  g_unlink((path + partSuffix).c_str());
}

void removeTracesOfLastRun(const std::string& record) {
  std::ifstream paths(record);
  for (std::string path; std::getline(paths, path, '\0');)
    if (Glib::path_is_absolute(path))
      removeTraces(path);
  g_unlink(record.c_str());
}

std::string destination(WebKitDownload* download) {
  return textOrNothing(webkit_download_get_destination(download));
}

} // namespace

std::string downloadFolder() {
  const std::string folder = Glib::get_user_special_dir(Glib::UserDirectory::DOWNLOAD);
  const bool isNamed = !folder.empty() && folder != Glib::get_home_dir();
  return isNamed ? folder : Glib::build_filename(Glib::get_home_dir(), "Downloads");
}

DownloadKeeper::DownloadKeeper(WebKitNetworkSession* session, std::string record,
                               std::function<bool()> mayStart)
    : session_(session), record_(std::move(record)), mayStart_(std::move(mayStart)) {
  removeTracesOfLastRun(record_);
  const auto onStart =
      +[](WebKitNetworkSession*, WebKitDownload* download, DownloadKeeper* self) { self->start(download); };
  g_signal_connect(session_, "download-started", G_CALLBACK(onStart), this);
}

DownloadKeeper::~DownloadKeeper() {
  g_signal_handlers_disconnect_by_data(session_, this);
  for (auto* download : std::exchange(watched_, {})) {
    g_signal_handlers_disconnect_by_data(download, this);
    webkit_download_cancel(download);
    removeTraces(destination(download));
    g_object_unref(download);
  }
  write();
}

void DownloadKeeper::start(WebKitDownload* download) {
  if (!mayStart_()) {
    webkit_download_cancel(download);
    return;
  }
  watched_.push_back(WEBKIT_DOWNLOAD(g_object_ref(download)));
  const auto onName = +[](WebKitDownload* started, const char* name, DownloadKeeper* self) -> gboolean {
    self->decideDestination(started, name);
    return TRUE;
  };
  g_signal_connect(download, "decide-destination", G_CALLBACK(onName), this);
  const auto onFailure =
      +[](WebKitDownload* failed, GError*, DownloadKeeper* self) { self->forgetFailed(failed); };
  g_signal_connect(download, "failed", G_CALLBACK(onFailure), this);
  const auto onEnd = +[](WebKitDownload* finished, DownloadKeeper* self) { self->end(finished); };
  g_signal_connect(download, "finished", G_CALLBACK(onEnd), this);
}

void DownloadKeeper::decideDestination(WebKitDownload* download, const char* suggestedName) {
  const auto path = reserveFile(downloadFolder(), suggestedName);
  if (!path) {
    webkit_download_cancel(download);
    return;
  }
  webkit_download_set_allow_overwrite(download, TRUE); // nothing but the file just reserved
  webkit_download_set_destination(download, path->c_str());
  write();
}

void DownloadKeeper::forgetFailed(WebKitDownload* download) {
  removeTraces(destination(download));
  end(download);
}

void DownloadKeeper::end(WebKitDownload* download) {
  if (std::erase(watched_, download) == 0)
    return;
  write();
  g_signal_handlers_disconnect_by_data(download, this);
  g_object_unref(download);
}

void DownloadKeeper::write() const {
  if (record_.empty())
    return;
  std::string paths;
  for (auto* download : watched_)
    paths += destination(download) + '\0';
  if (paths.empty())
    g_unlink(record_.c_str());
  else
    g_file_set_contents(record_.c_str(), paths.data(), static_cast<gssize>(paths.size()), nullptr);
}

} // namespace quorvel
