#include "engine/engineVersion.h"

#include <webkit/webkit.h>

namespace quorvel {

std::string engineVersion() {
  return "WebKitGTK " + std::to_string(webkit_get_major_version()) + "." +
         std::to_string(webkit_get_minor_version()) + "." + std::to_string(webkit_get_micro_version());
}

} // namespace quorvel
