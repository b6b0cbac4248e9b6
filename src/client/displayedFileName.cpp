#include "client/displayedFileName.h"

#include <algorithm>
#include <filesystem>

namespace quorvel {

std::string displayedFileName(const std::string& name) {
  constexpr auto isPlain = [](char letter) { return letter >= ' ' && letter <= '~'; };
  if (std::ranges::all_of(name, isPlain))
    return name;
  // A text that reads from the left, whose first part is one piece with a direction of its own.
  constexpr auto leftToRight = "\u200E", piece = "\u2068", endOfPiece = "\u2069";
  const auto extension = std::filesystem::path(name).extension().string();
  return leftToRight + (piece + name.substr(0, name.size() - extension.size()) + endOfPiece) + extension;
}

} // namespace quorvel
