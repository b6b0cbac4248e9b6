#pragma once

#include <string>

namespace quorvel {

/// The whole style sheet: the palette's colours and the type scale, generated from their tables, followed by
/// the rules of `quorvel.css`.
std::string styleSheet();

/// The rules of `quorvel.css` as they were written.
std::string handWrittenRules();

/// Has the toolkit read which symbols there are, the project's among them, in a thread of its own. The first
/// window waits for it, so call it as soon as the toolkit has been initialised; `installStyle()` does at the
/// latest.
void installSymbols();

/// Gives the default display the dark appearance, the style sheet and the project's symbols. Call it once,
/// when the toolkit has been initialised and before the first window.
void installStyle();

} // namespace quorvel
