#include "preferences/PreferencesText.h"

#include <sstream>

namespace quorvel {
namespace {

constexpr std::string_view groupHeader = "[Preferences]";

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t\r";
  const auto first = text.find_first_not_of(blanks);
  if (first == text.npos)
    return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

} // namespace

PreferencesText::PreferencesText(std::string_view text) {
  std::istringstream stream{std::string(text)};
  for (std::string line; std::getline(stream, line);)
    lines_.push_back(line);
}

std::optional<bool> PreferencesText::value(std::string_view key) const {
  const auto place = find(key);
  if (!place.line)
    return std::nullopt;
  const std::string_view line = lines_[*place.line];
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
    lines_[*place.line] = line;
  } else if (place.end) {
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(*place.end), line);
  } else {
    lines_.emplace_back(groupHeader);
    lines_.push_back(line);
  }
}

std::string PreferencesText::text() const {
  std::string text;
  for (const auto& line : lines_)
    text.append(line).append("\n");
  return text;
}

PreferencesText::Place PreferencesText::find(std::string_view key) const {
  Place place;
  bool isInGroup = false;
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const auto line = trimmed(lines_[i]);
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
