#include "engine/downloads.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <glib/gstdio.h>
#include <glibmm/miscutils.h>
#include <unistd.h>

namespace quorvel {
namespace {

/// The user's download folder; the home folder where the desktop names none.
std::string downloadFolder() {
  const std::string folder = Glib::get_user_special_dir(Glib::UserDirectory::DOWNLOAD);
  return folder.empty() ? Glib::get_home_dir() : folder;
}

gboolean decideDestination(WebKitDownload* download, const char* suggestedName, gpointer) {
  const auto path = reserveFile(downloadFolder(), suggestedName);
  if (!path) {
    webkit_download_cancel(download);
    return TRUE;
  }
  webkit_download_set_allow_overwrite(download, TRUE); // nothing but the file just reserved
  webkit_download_set_destination(download, path->c_str());
  return TRUE;
}

void removeReservation(WebKitDownload* download, GError*, gpointer) {
  const char* path = webkit_download_get_destination(download);
  GStatBuf status{};
  if (path && g_stat(path, &status) == 0 && status.st_size == 0)
    g_unlink(path);
}

void watch(WebKitNetworkSession*, WebKitDownload* download, gpointer) {
  g_signal_connect(download, "decide-destination", G_CALLBACK(decideDestination), nullptr);
  g_signal_connect(download, "failed", G_CALLBACK(removeReservation), nullptr);
}

} // namespace

std::optional<std::string> reserveFile(const std::string& folder, const std::string& name) {
  g_mkdir_with_parents(folder.c_str(), 0755);
  std::filesystem::path wanted = std::filesystem::path(name).filename();
  if (wanted.empty() || wanted == "." || wanted == "..")
    wanted = "download";

  std::filesystem::path path = std::filesystem::path(folder) / wanted;
  for (unsigned copy = 1;; ++copy) {
    const int file = g_open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY, 0666);
    if (file >= 0) {
      close(file);
      return path.string();
    }
    if (errno != EEXIST)
      return std::nullopt;
    const auto number = " (" + std::to_string(copy) + ")";
    path.replace_filename(wanted.stem().string() + number + wanted.extension().string());
  }
}

void saveUnderFreeNames(WebKitNetworkSession* session) {
  g_signal_connect(session, "download-started", G_CALLBACK(watch), nullptr);
}

} // namespace quorvel
