#include "preferences/FileWatch.h"

#include "preferences/wholeFiles.h"

#include <filesystem>
#include <giomm/file.h>
#include <giomm/init.h>
#include <glibmm/main.h>

namespace quorvel {
namespace {

namespace fs = std::filesystem;

bool isThere(const fs::path& path) {
  std::error_code error;
  return fs::exists(path, error);
}

} // namespace

FileWatch::FileWatch(std::string path, std::function<void()> onChange)
    : path_(std::move(path)), onChange_(std::move(onChange)) {
  Gio::init();
  watch();
}

FileWatch::~FileWatch() {
  telling_.disconnect();
  for (const auto& monitor : monitors_)
    monitor->cancel();
}

void FileWatch::watch() {
  for (const auto& monitor : monitors_)
    monitor->cancel();
  monitors_.clear();
  watchWayTo(path_);
  if (const auto place = behindLinks(path_); place && place != path_)
    watchWayTo(*place);
}

/// Watches the file, or the first folder that is missing on the way to it, and the folder that holds it.
///
/// What lies in a missing folder is left out: the library would look for it every few seconds, for ever.
void FileWatch::watchWayTo(const std::string& path) {
  fs::path entry = path;
  while (entry.has_relative_path() && !isThere(entry.parent_path()))
    entry = entry.parent_path();
  watchEntry(entry);
  if (entry.parent_path().has_relative_path())
    watchEntry(entry.parent_path());
}

void FileWatch::watchEntry(const std::string& path) {
  try {
    monitors_.push_back(Gio::File::create_for_path(path)->monitor_file(Gio::FileMonitorFlags::WATCH_MOVES));
    monitors_.back()->signal_changed().connect([this](const auto&...) { tellLater(); });
  } catch (const Glib::Error&) {
    // The others still tell.
  }
}

/// Later, because the monitors are made anew, which none of them survives that is just telling. They are made
/// before the change is told, so that nothing that happens in between goes unnoticed.
void FileWatch::tellLater() {
  if (telling_.connected())
    return;
  telling_ = Glib::signal_idle().connect(
      [this] {
        watch();
        onChange_();
        return false;
      },
      Glib::PRIORITY_DEFAULT);
}

} // namespace quorvel
