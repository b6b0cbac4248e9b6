#pragma once

#include <optional>
#include <string>

namespace quorvel {

/// Shows a sentence to whoever does not see the error output. Called while the program is ending.
using ShowSentence = void (*)(const std::string& sentence);

/// Has a fatal error of the toolkit or of the web engine say in a sentence what has happened, before it ends
/// the program as it would anyway: by a signal, so that a core dump can be had. The engine raises one where
/// it cannot start a process, or where that process ends at once; it leaves nobody a way to go on. Call it
/// once, before the toolkit starts. The sentence goes to the error output, and to `show` besides.
void explainFatalErrors(ShowSentence show);

/// Starts this program once more, to show the sentence in a window: one that is ending cannot do it itself.
/// Does nothing where the error output is a terminal, which somebody reads.
void showInProgramOfItsOwn(const std::string& sentence);

/// The sentence that this program was started once more for; nothing where it was started to do its work.
std::optional<std::string> sentenceToShow(int argc, char** argv);

} // namespace quorvel
