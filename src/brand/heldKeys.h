#pragma once

namespace quorvel {

/// From now on a key that is held acts once, in every window of the program: a press of Return or Space on a
/// button, a switch or a menu entry is one press, however long it takes, and wherever the focus goes
/// meanwhile. A text or a page in which the key went down gets it again and again as ever.
///
/// Call it when the toolkit has been initialised, before the first window; further calls change nothing.
void letHeldKeysActOnce();

} // namespace quorvel
