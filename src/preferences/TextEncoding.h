#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorvel {

/// How a text file is encoded, which editors of some systems tell by a mark at its beginning.
///
/// The mark itself stays in the text, as its first letter, so that a file is written as it was found. A file
/// without a mark of UTF-16 or UTF-32 is taken as it is, byte for byte.
class TextEncoding {
 public:
  static TextEncoding of(std::string_view bytes);

  /// The text in UTF-8; nothing where the bytes are not what their mark says.
  std::optional<std::string> decoded(const std::string& bytes) const;
  /// What was decoded, as bytes of this encoding again; nothing where it cannot be told in it.
  std::optional<std::string> encoded(const std::string& text) const;

 private:
  explicit TextEncoding(const char* name) : name_(name) {}

  const char* name_; ///< none: bytes that are left as they are
};

} // namespace quorvel
