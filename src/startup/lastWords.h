#pragma once

namespace quorvel {

/// Has a fatal error of the toolkit or of the web engine say in a sentence what has happened, before it ends
/// the program as it would anyway: by a signal, so that a core dump can be had. The engine raises one where
/// it cannot start a process, or where that process ends at once; it leaves nobody a way to go on. Call it
/// once, before the toolkit starts.
void explainFatalErrors();

} // namespace quorvel
