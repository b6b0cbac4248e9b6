#pragma once

#include <chrono>
#include <string>

namespace quorvel {

/// The right to write in a folder, which the running programs of one user grant each other one at a time.
///
/// Held until its scope ends. A file system that knows no locks grants it to everybody.
class FolderLock {
 public:
  /// Waits for another holder no longer than `patience`.
  FolderLock(const std::string& folder, std::chrono::milliseconds patience);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  /// False where another program did not let go of it, or where there is no such folder.
  explicit operator bool() const { return isHeld_; }

 private:
  int folder_;
  bool isHeld_;
};

} // namespace quorvel
