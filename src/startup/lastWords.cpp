#include "startup/lastWords.h"

#include <glib.h>
#include <iostream>
#include <string_view>

namespace quorvel {
namespace {

struct Explanation {
  std::string_view beginning; ///< of the message
  std::string_view before, after;
};
constexpr std::string_view cannotStart = "the web engine cannot start its processes here";
constexpr std::string_view needs = " It needs bubblewrap, and a system that lets a program make namespaces.";
constexpr std::string_view endedAtOnce = "a process of the web engine ended while it was starting";
constexpr std::string_view suspect =
    " Where that happens every time, the system does not let bubblewrap make the sandbox.";
constexpr Explanation explanations[] = {
    {"Unable to spawn a new child process", cannotStart, needs},
    {"Failed to start dbus proxy", cannotStart, needs},
    {"Failed to fully launch dbus-proxy", cannotStart, needs},
    {"Failed to read pid from child process", endedAtOnce, suspect},
    {"readPIDFromPeer", endedAtOnce, suspect},
    {"", "a fatal error occurred", ""},
};

std::string_view message(const GLogField* fields, gsize count) {
  for (gsize i = 0; i < count; ++i)
    if (std::string_view(fields[i].key) == "MESSAGE")
      return static_cast<const char*>(fields[i].value);
  return "unknown";
}

void explain(std::string_view message) {
  for (const auto& [beginning, before, after] : explanations)
    if (message.starts_with(beginning)) {
      std::cerr << "Quorvel has to stop: " << before << " (" << message << ")." << after << std::endl;
      return;
    }
}

GLogWriterOutput write(GLogLevelFlags level, const GLogField* fields, gsize count, gpointer) {
  if (!(level & G_LOG_LEVEL_ERROR))
    return g_log_writer_default(level, fields, count, nullptr);
  explain(message(fields, count));
  return G_LOG_WRITER_HANDLED;
}

} // namespace

void explainFatalErrors() {
  g_log_set_writer_func(write, nullptr, nullptr);
}

} // namespace quorvel
