#include "preferences/PreferencesText.h"

#include <algorithm>
#include <array>

namespace quorvel {
namespace {

constexpr std::string_view groupHeader = "[Preferences]";

/// Without the blanks at both ends. Editors of some systems put a byte order mark before the first line.
std::string_view trimmed(std::string_view text) {
  constexpr std::array<std::string_view, 3> blanks{" ", "\t", "\xef\xbb\xbf"};
  for (std::size_t before = text.npos; before != text.size();) {
    before = text.size();
    for (const auto blank : blanks) {
      if (text.starts_with(blank))
        text.remove_prefix(blank.size());
      if (text.ends_with(blank))
        text.remove_suffix(blank.size());
    }
  }
  return text;
}

} // namespace

PreferencesText::PreferencesText(std::string_view text) {
  while (!text.empty()) {
    const auto length = std::min(text.find_first_of("\r\n"), text.size());
    const auto rest = text.substr(length);
    const auto end = rest.substr(0, rest.starts_with("\r\n") ? 2 : 1);
    lines_.push_back({std::string(text.substr(0, length)), std::string(end)});
    text.remove_prefix(length + end.size());
  }
}

std::optional<bool> PreferencesText::value(std::string_view key) const {
  const auto place = find(key);
  if (!place.line)
    return std::nullopt;
  const std::string_view line = lines_[*place.line].content;
  const auto value = trimmed(line.substr(line.find('=') + 1));
  if (value == "true")
    return true;
  if (value == "false")
    return false;
  return std::nullopt;
}

void PreferencesText::setValue(std::string_view key, bool value) {
  const std::string line = std::string(key) + (value ? "=true" : "=false");
  const auto place = find(key);
  if (place.line) {
    lines_[*place.line].content = line;
    return;
  }
  if (!place.end)
    insert(lines_.size(), groupHeader);
  insert(place.end.value_or(lines_.size()), line);
}

void PreferencesText::insert(std::size_t place, std::string_view content) {
  const std::string end = lines_.empty() || lines_.front().end.empty() ? "\n" : lines_.front().end;
  if (place > 0 && lines_[place - 1].end.empty())
    lines_[place - 1].end = end;
  lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(place), {std::string(content), end});
}

std::string PreferencesText::text() const {
  std::string text;
  for (const auto& line : lines_)
    text.append(line.content).append(line.end);
  return text;
}

PreferencesText::Place PreferencesText::find(std::string_view key) const {
  Place place;
  bool isInGroup = false;
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const auto line = trimmed(lines_[i].content);
    if (line.starts_with('['))
      isInGroup = line == groupHeader;
    if (!isInGroup || line.empty())
      continue;
    place.end = i + 1;
    if (const auto equals = line.find('='); equals != line.npos && trimmed(line.substr(0, equals)) == key)
      place.line = i;
  }
  return place;
}

} // namespace quorvel
