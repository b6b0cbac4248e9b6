#include "respond.h"

namespace quorvel::demo {

void respond(SoupServerMessage* message, unsigned status) {
  soup_server_message_set_status(message, status, nullptr);
}

void respond(SoupServerMessage* message, unsigned status, const std::string& mediaType,
             const std::string& body) {
  respond(message, status);
  soup_message_headers_replace(soup_server_message_get_response_headers(message), "Cache-Control",
                               "no-cache");
  soup_server_message_set_response(message, mediaType.c_str(), SOUP_MEMORY_COPY, body.data(), body.size());
}

} // namespace quorvel::demo
