#pragma once

#include "support/eventually.h"

#include <filesystem>

namespace quorvel::tests {

/// A folder of the test's own, which only its user can read and which goes with this object.
struct TemporaryFolder {
  TemporaryFolder() {
    std::string name = std::filesystem::temp_directory_path() / "quorvel-test-XXXXXX";
    if (!g_mkdtemp(name.data()))
      throw std::filesystem::filesystem_error("no temporary folder", name,
                                              std::make_error_code(std::errc(errno)));
    path = name;
  }
  ~TemporaryFolder() {
    empty();
    std::filesystem::remove(path);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  /// Removes all that is in it, also when a program that the test has just ended is still writing its last.
  void empty() const {
    EXPECT_TRUE(eventually([this] {
      std::error_code error;
      for (const auto& entry : std::filesystem::directory_iterator(path))
        std::filesystem::remove_all(entry, error);
      return std::filesystem::is_empty(path);
    })) << path;
  }

  std::filesystem::path path;
};

} // namespace quorvel::tests
