#pragma once

#include <string>

namespace quorvel {

/// The name of a file as it is shown to its reader, to whom the end tells what kind of file it is: that stays
/// at the end, whichever direction the letters before it have.
std::string displayedFileName(const std::string& name);

} // namespace quorvel
