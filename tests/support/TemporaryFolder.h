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
  // A program that the test has just ended may still be writing its last.
  ~TemporaryFolder() {
    EXPECT_TRUE(eventually([this] {
      std::error_code error;
      std::filesystem::remove_all(path, error);
      return !std::filesystem::exists(path);
    })) << path;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::filesystem::path path;
};

} // namespace quorvel::tests
