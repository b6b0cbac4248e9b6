#include "startup/lastWords.h"

#include <cstdlib>
#include <glib.h>
#include <iostream>
#include <string_view>

namespace quorvel {
namespace {

std::string_view message(const GLogField* fields, gsize count) {
  for (gsize i = 0; i < count; ++i)
    if (std::string_view(fields[i].key) == "MESSAGE")
      return static_cast<const char*>(fields[i].value);
  return "unknown";
}

GLogWriterOutput write(GLogLevelFlags level, const GLogField* fields, gsize count, gpointer) {
  if (!(level & G_LOG_LEVEL_ERROR))
    return g_log_writer_default(level, fields, count, nullptr);
  std::cerr << "Quorvel has to stop: the web engine cannot start here (" << message(fields, count)
            << "). It needs bubblewrap, and a system that lets a program make namespaces." << std::endl;
  std::_Exit(EXIT_FAILURE);
}

} // namespace

void explainEngineFailure() {
  g_log_set_writer_func(write, nullptr, nullptr);
}

} // namespace quorvel
