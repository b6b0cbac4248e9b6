#pragma once

namespace quorvel {

/// Has everything that the toolkit draws by itself (title bars' buttons, menus, its own dialogs) suit windows
/// that are dark whatever theme the desktop or the environment names; with high contrast where that asks for
/// it. Follows the desktop from then on. Call it once, when the toolkit has been initialised.
void keepToolkitDark();

} // namespace quorvel
