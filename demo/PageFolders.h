#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quorvel::demo {

struct Page {
  std::string content;
  std::string mediaType; ///< ready for the Content-Type header
};

/// The folders whose files are the service's pages. Files are read afresh each time, so that an edited page
/// shows on the next reload; nothing outside the folders is ever served.
class PageFolders {
 public:
  explicit PageFolders(std::vector<std::string> folders) : folders_(std::move(folders)) {}

  /// The page for a decoded request path ("/pricing.html"; "/" means "/index.html"), or nothing when no
  /// folder has it.
  std::optional<Page> find(const std::string& path) const;

 private:
  std::vector<std::string> folders_;
};

} // namespace quorvel::demo
