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
/// the last one counts. A line may end as on any system, and a byte order mark counts as a blank. Whatever
/// else stands in the text (comments, other groups and keys, broken lines) stays as it is, byte for byte,
/// which is why the text is edited line by line and not parsed into a `Glib::KeyFile` and written anew.
class PreferencesText {
 public:
  explicit PreferencesText(std::string_view text = {});

  std::optional<bool> value(std::string_view key) const;
  void setValue(std::string_view key, bool value);
  /// The whole text. A new line is ended as the others are, and one that it follows is ended too.
  std::string text() const;

 private:
  struct Place {
    std::optional<std::size_t> line; ///< of the key
    std::optional<std::size_t> end;  ///< of the group: where a new line belongs
  };
  Place find(std::string_view key) const;
  void insert(std::size_t place, std::string_view content);

  struct Line {
    std::string content;
    std::string end; ///< none on a last line that is not ended
  };
  std::vector<Line> lines_;
};

} // namespace quorvel
