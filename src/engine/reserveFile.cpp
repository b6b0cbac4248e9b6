#include "engine/reserveFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <glib/gstdio.h>
#include <glibmm/ustring.h>
#include <unistd.h>
#include <utility>

namespace quorvel {
namespace {

constexpr std::size_t longestName = 200, longestExtension = 32; // in bytes

struct Letters {
  gunichar first, last;
};

/// Letters, marks and symbols that are drawn as nothing. Those that are made for it have types of their own.
constexpr std::array unseen{Letters{0x034f, 0x034f}, Letters{0x115f, 0x1160}, Letters{0x17b4, 0x17b5},
                            Letters{0x180b, 0x180f}, Letters{0x2800, 0x2800}, Letters{0x3164, 0x3164},
                            Letters{0xfe00, 0xfe0f}, Letters{0xffa0, 0xffa0}, Letters{0xe0000, 0xe0fff}};

/// Controls, and what turns the direction of letters or is not seen.
bool isTreacherous(gunichar letter) {
  const auto isIn = [letter](const Letters& some) { return some.first <= letter && letter <= some.last; };
  const auto type = g_unichar_type(letter);
  return std::ranges::any_of(unseen, isIn) || type == G_UNICODE_CONTROL || type == G_UNICODE_FORMAT ||
         type == G_UNICODE_LINE_SEPARATOR || type == G_UNICODE_PARAGRAPH_SEPARATOR;
}

/// With one plain space for any number of any: many would move what follows out of sight.
std::string withoutTreacherousLetters(const std::string& name) {
  Glib::ustring kept;
  bool isAfterSpace = false;
  for (const gunichar letter : Glib::ustring(name).make_valid()) {
    if (isTreacherous(letter))
      continue;
    const bool isSpace = g_unichar_type(letter) == G_UNICODE_SPACE_SEPARATOR;
    if (!isSpace || !isAfterSpace)
      kept += isSpace ? ' ' : letter;
    isAfterSpace = isSpace;
  }
  return kept.raw();
}

/// Without what would hide a file, or make it that of another download.
std::string withoutTreacherousEnds(std::string name) {
  constexpr auto ends = ". ";
  name.erase(0, name.find_first_not_of(ends));
  name.erase(name.find_last_not_of(ends) + 1);
  if (!name.ends_with(partSuffix))
    return name;
  name.resize(name.size() - partSuffix.size());
  return withoutTreacherousEnds(std::move(name));
}

/// Makes an empty file where there is none; what became of it is in `errno`.
bool make(const std::filesystem::path& path) {
  GStatBuf status{};
  if (g_lstat((path.string().append(partSuffix)).c_str(), &status) == 0) {
    errno = EEXIST;
    return false;
  }
  const int file = g_open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY, 0666);
  if (file >= 0)
    close(file);
  return file >= 0;
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
  const auto kept = withoutTreacherousEnds(withoutTreacherousLetters(last));
  return kept.empty() ? "download" : withMark(kept, "");
}

std::optional<std::string> reserveFile(const std::string& folder, const std::string& name) {
  g_mkdir_with_parents(folder.c_str(), 0755);
  const auto wanted = safeFileName(name);
  std::filesystem::path path = std::filesystem::path(folder) / wanted;
  for (unsigned copy = 1;; ++copy) {
    if (make(path))
      return path.string();
    if (errno != EEXIST)
      return std::nullopt;
    path.replace_filename(withMark(wanted, " (" + std::to_string(copy) + ")"));
  }
}

} // namespace quorvel
