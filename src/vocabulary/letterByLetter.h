#pragma once

namespace quorvel {

/// A text with each of its letters converted by itself: `letterByLetter(title, Glib::Unicode::toupper)`.
/// Other than with the toolkit's conversion of whole texts, the desktop's language has no say in it.
template <class Text, class Convert>
Text letterByLetter(const Text& text, Convert convert) {
  Text result;
  for (const auto letter : text)
    result += convert(letter);
  return result;
}

} // namespace quorvel
