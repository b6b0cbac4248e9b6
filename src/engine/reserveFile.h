#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorvel {

/// The engine writes into a file with this at the end of its name, and puts it in its place when it is whole.
inline constexpr std::string_view partSuffix = ".wkdownload";

/// A name for a file that a page has thought of, as it may stand in a folder: without folders, dots at its
/// ends, control characters and what turns the direction of letters, moves them away or is not seen, no
/// longer than 200 bytes with its extension kept. What is left of nothing is "download".
std::string safeFileName(const std::string& name);

/// Makes an empty file in `folder` under a name that was free, for the engine's own too: the safe form of
/// `name`, or "name (1).ext" and so on. Makes `folder` if need be. Returns the file's path, or nothing when
/// the folder cannot be written to.
std::optional<std::string> reserveFile(const std::string& folder, const std::string& name);

} // namespace quorvel
