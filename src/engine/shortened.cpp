#include "engine/shortened.h"

#include <glib.h>

namespace quorvel {

std::string shortened(const char* text, long longest) {
  if (!text)
    return "";
  const char* end = text;
  for (long count = 0; *end && count < longest; ++count)
    end = g_utf8_next_char(end);
  return *end ? std::string(text, end) + "…" : text;
}

} // namespace quorvel
