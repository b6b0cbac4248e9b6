#pragma once

#include <optional>
#include <string>
#include <webkit/webkit.h>

namespace quorvel {

/// Makes an empty file in `folder` under a name that was free: `name` itself, or "name (1).ext" and so on.
/// Folders in `name` are dropped; a name of nothing else becomes "download". Makes `folder` if need be.
/// Returns the file's path, or nothing when the folder cannot be written to.
std::optional<std::string> reserveFile(const std::string& folder, const std::string& name);

/// Has what the session's pages download put into the user's download folder, each file under a name of its
/// own: the engine by itself would replace a file of the same name.
void saveUnderFreeNames(WebKitNetworkSession* session);

} // namespace quorvel
