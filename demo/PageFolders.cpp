#include "PageFolders.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>
#include <utility>

namespace quorvel::demo {
namespace {

namespace fs = std::filesystem;

bool staysInside(const fs::path& relative) {
  for (const auto& part : relative)
    if (part == "..")
      return false;
  return relative.is_relative() && !relative.empty();
}

constexpr std::array<std::pair<std::string_view, const char*>, 6> mediaTypes{{
    {".html", "text/html; charset=utf-8"},
    {".css", "text/css; charset=utf-8"},
    {".js", "text/javascript; charset=utf-8"},
    {".svg", "image/svg+xml"},
    {".png", "image/png"},
    {".woff2", "font/woff2"},
}};

std::string mediaType(const fs::path& file) {
  for (const auto& [extension, type] : mediaTypes)
    if (file.extension() == extension)
      return type;
  return "application/octet-stream";
}

} // namespace

std::optional<Page> PageFolders::find(const std::string& path) const {
  const fs::path relative = path == "/" ? "index.html" : path.substr(1);
  if (!staysInside(relative))
    return std::nullopt;
  for (const auto& folder : folders_) {
    const fs::path file = fs::path(folder) / relative;
    std::ifstream stream(file, std::ios::binary);
    if (fs::is_regular_file(file) && stream)
      return Page{{std::istreambuf_iterator<char>(stream), {}}, mediaType(file)};
  }
  return std::nullopt;
}

} // namespace quorvel::demo
