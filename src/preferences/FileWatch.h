#pragma once

#include <functional>
#include <giomm/filemonitor.h>
#include <string>
#include <vector>

namespace quorvel {

/// Tells, through the main loop, that a file has changed, come or gone, whatever becomes of the links and the
/// folders on the way to it.
///
/// Several changes may be told as one, and one may be told where there was none. Where the system cannot
/// watch files nothing is ever told.
class FileWatch {
 public:
  /// `path` is absolute. `onChange` is not called once the watch is gone.
  FileWatch(std::string path, std::function<void()> onChange);
  ~FileWatch();
  FileWatch(const FileWatch&) = delete;
  FileWatch& operator=(const FileWatch&) = delete;

 private:
  void watch();
  void watchWayTo(const std::string& path);
  void watchEntry(const std::string& path);
  void tellLater();

  std::string path_;
  std::function<void()> onChange_;
  std::vector<Glib::RefPtr<Gio::FileMonitor>> monitors_;
  sigc::connection telling_;
};

} // namespace quorvel
