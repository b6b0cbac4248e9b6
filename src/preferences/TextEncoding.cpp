#include "preferences/TextEncoding.h"

#include <array>
#include <glibmm/convert.h>

namespace quorvel {
namespace {

using namespace std::string_view_literals;

struct Mark {
  std::string_view bytes;
  const char* encoding;
};

// The longer ones first: one of them begins like a shorter one.
constexpr std::array marks{Mark{"\xff\xfe\0\0"sv, "UTF-32LE"}, Mark{"\0\0\xfe\xff"sv, "UTF-32BE"},
                           Mark{"\xff\xfe"sv, "UTF-16LE"}, Mark{"\xfe\xff"sv, "UTF-16BE"}};

std::optional<std::string> converted(const std::string& text, const char* to, const char* from) {
  try {
    return Glib::convert(text, to, from);
  } catch (const Glib::Error&) {
    return std::nullopt;
  }
}

} // namespace

TextEncoding TextEncoding::of(std::string_view bytes) {
  // Bytes that begin like a mark by chance have no zeros among them, as all plain letters of these encodings
  // do.
  if (bytes.find('\0') != bytes.npos)
    for (const auto& mark : marks)
      if (bytes.starts_with(mark.bytes))
        return TextEncoding(mark.encoding);
  return TextEncoding(nullptr);
}

std::optional<std::string> TextEncoding::decoded(const std::string& bytes) const {
  return name_ ? converted(bytes, "UTF-8", name_) : bytes;
}

std::optional<std::string> TextEncoding::encoded(const std::string& text) const {
  return name_ ? converted(text, name_, "UTF-8") : text;
}

} // namespace quorvel
