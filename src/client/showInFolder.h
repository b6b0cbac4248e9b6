#pragma once

#include <string>

namespace quorvel {

/// Has the desktop's file manager show a file in its folder, or open the folder where it cannot do that.
/// Returns at once; without a file manager nothing happens.
void showInFolder(const std::string& path);

} // namespace quorvel
