#pragma once

#include <optional>
#include <string>

namespace quorvel {

/// Small files that are read and written as a whole. A path is absolute; nothing here blocks, throws or
/// follows a link on its own.

/// No file is read or written that is larger than this many bytes.
inline constexpr std::size_t largestFileSize = 1024 * 1024;

/// Where the links at `path` lead: to a file, or to a place where there is none. Nothing if in a circle.
std::optional<std::string> behindLinks(const std::string& path);

/// The bytes of a file; none where there is no file. Nothing if what is there cannot be read as one: no right
/// to, no regular file, or too large.
std::optional<std::string> contentsOf(const std::string& path);

/// Puts a file with these bytes, readable by its owner only, in the place of what is there: all of it, or
/// nothing. False if nothing, because the file is write-protected, too large, or finds no room.
bool replaceFile(const std::string& path, const std::string& bytes);

/// Removes what a `replaceFile()` that was killed left beside the file. Not to be called while one runs.
void removeLeftovers(const std::string& path);

} // namespace quorvel
