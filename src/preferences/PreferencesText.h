#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvel {

/// The text of a preferences file: a key file whose group `[Preferences]` holds one line `key=true` or
/// `key=false` per switch that was ever flipped.
///
/// Any text is accepted. A value other than `true` and `false` reads as absent; of several lines with one key
/// the last one counts. Whatever else stands in the text (comments, other groups and keys, broken lines)
/// stays as it is, which is why the text is edited line by line and not parsed into a `Glib::KeyFile` and
/// written anew.
class PreferencesText {
 public:
  explicit PreferencesText(std::string_view text = {});

  std::optional<bool> value(std::string_view key) const;
  void setValue(std::string_view key, bool value);
  /// The whole text, each line ended.
  std::string text() const;

 private:
  struct Place {
    std::optional<std::size_t> line; ///< of the key
    std::optional<std::size_t> end;  ///< of the group: where a new line belongs
  };
  Place find(std::string_view key) const;

  std::vector<std::string> lines_;
};

} // namespace quorvel
