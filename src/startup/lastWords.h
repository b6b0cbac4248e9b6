#pragma once

namespace quorvel {

/// Has a fatal error of the toolkit or of the web engine end the program with status 1 and one sentence that
/// says what is missing, in place of a crash. The engine raises one where its sandbox cannot be set up,
/// without which it shows no page. Call it once, before the toolkit starts.
void explainEngineFailure();

} // namespace quorvel
