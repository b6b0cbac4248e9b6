#pragma once

#include <filesystem>
#include <glib.h>
#include <string>

namespace quorvel::tests {

/// A folder that is there as long as this object.
struct TemporaryFolder {
  ~TemporaryFolder() { std::filesystem::remove_all(path); }
  std::filesystem::path path = [] {
    std::string name = std::filesystem::temp_directory_path() / "quorvel-test-XXXXXX";
    return std::filesystem::path(g_mkdtemp(name.data()));
  }();
};

} // namespace quorvel::tests
