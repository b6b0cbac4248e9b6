#pragma once

#include <libsoup/soup.h>
#include <string>

namespace quorvel::demo {

/// Answers with a status and no content.
void respond(SoupServerMessage* message, unsigned status);
/// Answers with a status and a body that no cache may keep without asking again.
void respond(SoupServerMessage* message, unsigned status, const std::string& mediaType,
             const std::string& body);

} // namespace quorvel::demo
