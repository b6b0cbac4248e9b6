#pragma once

#include <optional>
#include <string>

namespace quorvel {

/// A name for a file that a page has thought of, as it may stand in a folder: without folders, leading dots,
/// control characters and what turns the direction of letters, no longer than 200 bytes with its extension
/// kept. What is left of nothing is "download".
std::string safeFileName(const std::string& name);

/// Makes an empty file in `folder` under a name that was free: the safe form of `name`, or "name (1).ext" and
/// so on. Makes `folder` if need be. Returns the file's path, or nothing when the folder cannot be written
/// to.
std::optional<std::string> reserveFile(const std::string& folder, const std::string& name);

} // namespace quorvel
