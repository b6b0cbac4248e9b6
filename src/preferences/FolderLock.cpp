#include "preferences/FolderLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

namespace quorvel {
namespace {

bool lock(int folder, std::chrono::milliseconds patience) {
  const auto deadline = std::chrono::steady_clock::now() + patience;
  while (::flock(folder, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR)
      return true; // A file system without locks: better to write unguarded than never.
    if (std::chrono::steady_clock::now() >= deadline)
      return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return true;
}

} // namespace

FolderLock::FolderLock(const std::string& folder, std::chrono::milliseconds patience)
    : folder_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
      isHeld_(folder_ >= 0 && lock(folder_, patience)) {}

FolderLock::~FolderLock() {
  if (folder_ >= 0)
    ::close(folder_); // which ends the lock
}

} // namespace quorvel
