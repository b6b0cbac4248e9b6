#include "engine/DownloadKeeper.h"

#include "engine/reserveFile.h"

#include <algorithm>
#include <fstream>
#include <glib/gstdio.h>
#include <glibmm/fileutils.h>
#include <glibmm/miscutils.h>
#include <memory>
#include <utility>

namespace quorvel {
namespace {

/// What there is of a download that did not come to its end. A file that has content is the user's.
void removeTraces(const std::string& path) {
  if (path.empty())
    return;
  GStatBuf status{};
  if (g_lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size == 0)
    g_unlink(path.c_str());
  g_unlink((std::string(path).append(partSuffix)).c_str());
}

void removeTracesOfLastRun(const std::string& record) {
  std::ifstream paths(record);
  for (std::string path; std::getline(paths, path, '\0');)
    if (Glib::path_is_absolute(path))
      removeTraces(path);
  g_unlink(record.c_str());
}

/// Before the server has proposed a name: as the address ends.
std::string nameInAddress(WebKitDownload* download) {
  const char* address = webkit_uri_request_get_uri(webkit_download_get_request(download));
  const std::unique_ptr<GUri, decltype(&g_uri_unref)> parts(
      address ? g_uri_parse(address, G_URI_FLAGS_PARSE_RELAXED, nullptr) : nullptr, &g_uri_unref);
  return safeFileName(parts ? g_uri_get_path(parts.get()) : "");
}

std::uint64_t expectedBytes(WebKitDownload* download) {
  auto* response = webkit_download_get_response(download);
  return response ? webkit_uri_response_get_content_length(response) : 0;
}

void letGo(WebKitDownload* download, DownloadKeeper* keeper) {
  g_signal_handlers_disconnect_by_data(download, keeper);
}

} // namespace

std::string downloadFolder() {
  const std::string folder = Glib::get_user_special_dir(Glib::UserDirectory::DOWNLOAD);
  const bool isNamed = !folder.empty() && folder != Glib::get_home_dir();
  return isNamed ? folder : Glib::build_filename(Glib::get_home_dir(), "Downloads");
}

DownloadKeeper::DownloadKeeper(WebKitNetworkSession* session, std::string record, Owner owner)
    : session_(session), record_(std::move(record)), owner_(std::move(owner)) {
  removeTracesOfLastRun(record_);
  const auto onStart =
      +[](WebKitNetworkSession*, WebKitDownload* download, DownloadKeeper* self) { self->start(download); };
  g_signal_connect(session_, "download-started", G_CALLBACK(onStart), this);
}

DownloadKeeper::~DownloadKeeper() {
  g_signal_handlers_disconnect_by_data(session_, this);
  for (const auto& [download, seen] : std::exchange(watched_, {})) {
    letGo(download.get(), this);
    webkit_download_cancel(download.get());
    removeTraces(seen.path);
  }
  write();
}

void DownloadKeeper::start(WebKitDownload* download) {
  if (!owner_.mayStart()) {
    webkit_download_cancel(download);
    return;
  }
  watched_.push_back(
      {referenceTo(download), {.id = std::to_string(++count_), .name = nameInAddress(download)}});
  const auto onName = +[](WebKitDownload* started, const char* name, DownloadKeeper* self) -> gboolean {
    self->decideDestination(started, name);
    return TRUE;
  };
  g_signal_connect(download, "decide-destination", G_CALLBACK(onName), this);
  const auto onData =
      +[](WebKitDownload* growing, guint64, DownloadKeeper* self) { self->noteProgress(growing); };
  g_signal_connect(download, "received-data", G_CALLBACK(onData), this);
  const auto onFailure = +[](WebKitDownload* failed, const GError* error, DownloadKeeper* self) {
    self->noteFailure(failed, error);
  };
  g_signal_connect(download, "failed", G_CALLBACK(onFailure), this);
  const auto onEnd =
      +[](WebKitDownload* finished, DownloadKeeper* self) { self->end(finished, Download::State::done); };
  g_signal_connect(download, "finished", G_CALLBACK(onEnd), this);
}

void DownloadKeeper::decideDestination(WebKitDownload* download, const char* suggestedName) {
  auto& seen = find(download)->seen;
  seen.name = safeFileName(suggestedName);
  const auto path = reserveFile(downloadFolder(), seen.name);
  if (!path) {
    end(download, Download::State::failed);
    webkit_download_cancel(download);
    return;
  }
  webkit_download_set_allow_overwrite(download, TRUE); // nothing but the file just reserved
  webkit_download_set_destination(download, path->c_str());
  seen.path = *path;
  seen.name = Glib::path_get_basename(*path);
  write();
  noteProgress(download);
}

void DownloadKeeper::noteProgress(WebKitDownload* download) {
  auto& seen = find(download)->seen;
  seen.received = webkit_download_get_received_data_length(download);
  seen.expected = expectedBytes(download);
  owner_.onChange(seen);
}

void DownloadKeeper::noteFailure(WebKitDownload* download, const GError* error) {
  const bool isWanted =
      g_error_matches(error, WEBKIT_DOWNLOAD_ERROR, WEBKIT_DOWNLOAD_ERROR_CANCELLED_BY_USER);
  end(download, isWanted ? Download::State::cancelled : Download::State::failed);
}

void DownloadKeeper::end(WebKitDownload* download, Download::State state) {
  const auto place = find(download);
  const Watched ended = std::move(*place);
  watched_.erase(place);
  letGo(download, this);
  Download seen = ended.seen;
  seen.state = state;
  if (state != Download::State::done)
    removeTraces(std::exchange(seen.path, ""));
  write();
  owner_.onChange(seen);
}

void DownloadKeeper::cancel(const std::string& id) {
  const auto found = std::ranges::find(watched_, id, [](const Watched& each) { return each.seen.id; });
  if (found != watched_.end())
    webkit_download_cancel(found->engines.get());
}

/// Only what is watched tells of itself.
std::vector<DownloadKeeper::Watched>::iterator DownloadKeeper::find(WebKitDownload* download) {
  return std::ranges::find(watched_, download, [](const Watched& each) { return each.engines.get(); });
}

void DownloadKeeper::write() const {
  if (record_.empty())
    return;
  std::string paths;
  for (const auto& [download, seen] : watched_)
    if (!seen.path.empty())
      paths += seen.path + '\0';
  if (paths.empty())
    g_unlink(record_.c_str());
  else
    g_file_set_contents(record_.c_str(), paths.data(), static_cast<gssize>(paths.size()), nullptr);
}

} // namespace quorvel
