#pragma once

#include <libsoup/soup.h>
#include <string_view>

namespace quorvel::demo {

/// Answers one request. `query` holds the decoded parameters and may be null.
using StagedReply = void (*)(SoupServerMessage* message, GHashTable* query);

/// The answers that no file can give: sign-in, and everything that goes wrong or takes its time.
///
///   /sign-in           sets the session cookie for thirty days and goes on to the agent page
///   /sign-out          takes the cookie away and goes on to the sign-in page
///   /report            takes note (in the log) of what a page says of itself; no content
///   /status?code=N     an answer with that status
///   /redirect?to=URL   sends the browser there, whatever the scheme
///   /download?name=N   a file to keep; with &seconds=S it takes its time
///   /slow?seconds=N    one more paragraph every second
///   /silent            takes the request and never answers
///   /cut-off           resets the connection in the middle of the body
///
/// Null when the path is none of these.
StagedReply stagedReply(std::string_view path);

} // namespace quorvel::demo
