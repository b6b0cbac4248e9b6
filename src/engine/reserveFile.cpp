#include "engine/reserveFile.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <glib/gstdio.h>
#include <glibmm/ustring.h>
#include <unistd.h>

namespace quorvel {
namespace {

constexpr std::size_t longestName = 200, longestExtension = 32; // in bytes

/// Controls, and what turns the direction of letters or is not seen.
bool isTreacherous(gunichar letter) {
  const auto type = g_unichar_type(letter);
  return type == G_UNICODE_CONTROL || type == G_UNICODE_FORMAT || type == G_UNICODE_LINE_SEPARATOR ||
         type == G_UNICODE_PARAGRAPH_SEPARATOR;
}

Glib::ustring withoutTreacherousLetters(const std::string& name) {
  Glib::ustring kept;
  for (const gunichar letter : Glib::ustring(name).make_valid())
    if (!isTreacherous(letter))
      kept += letter;
  return kept;
}

/// As many whole letters as fit into so many bytes.
std::string cut(const std::string& text, std::size_t bytes) {
  if (text.size() <= bytes)
    return text;
  const char* end = g_utf8_find_prev_char(text.c_str(), text.c_str() + bytes + 1);
  return text.substr(0, static_cast<std::size_t>(end - text.c_str()));
}

/// With something between stem and extension, of which the stem makes the room.
std::string withMark(const std::string& name, const std::string& mark) {
  const std::filesystem::path path(name);
  auto extension = path.extension().string();
  if (extension.size() > longestExtension)
    extension.clear();
  const auto stem = name.substr(0, name.size() - extension.size());
  return cut(stem, longestName - extension.size() - mark.size()) + mark + extension;
}

} // namespace

std::string safeFileName(const std::string& name) {
  const auto last = std::filesystem::path(name).filename().string();
  const std::string letters = withoutTreacherousLetters(last);
  const auto start = letters.find_first_not_of(". ");
  return start == letters.npos ? "download" : withMark(letters.substr(start), "");
}

std::optional<std::string> reserveFile(const std::string& folder, const std::string& name) {
  g_mkdir_with_parents(folder.c_str(), 0755);
  const auto wanted = safeFileName(name);
  std::filesystem::path path = std::filesystem::path(folder) / wanted;
  for (unsigned copy = 1;; ++copy) {
    const int file = g_open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY, 0666);
    if (file >= 0) {
      close(file);
      return path.string();
    }
    if (errno != EEXIST)
      return std::nullopt;
    path.replace_filename(withMark(wanted, " (" + std::to_string(copy) + ")"));
  }
}

} // namespace quorvel
