#include "startup/lastWords.h"

#include <array>
#include <glib.h>
#include <iostream>
#include <string_view>
#include <unistd.h>

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
    {"Connection: failed to receive credentials", endedAtOnce, suspect}, // WebKitGTK 2.52
    {"", "a fatal error occurred", ""},
};

std::string_view message(const GLogField* fields, gsize count) {
  for (gsize i = 0; i < count; ++i)
    if (std::string_view(fields[i].key) == "MESSAGE")
      return static_cast<const char*>(fields[i].value);
  return "unknown";
}

std::string sentenceFor(std::string_view message) {
  std::string sentence = "Quorvel has to stop: ";
  for (const auto& [beginning, before, after] : explanations)
    if (message.starts_with(beginning))
      return sentence.append(before).append(" (").append(message).append(").").append(after);
  return sentence;
}

GLogWriterOutput write(GLogLevelFlags level, const GLogField* fields, gsize count, gpointer show) {
  if (!(level & G_LOG_LEVEL_ERROR))
    return g_log_writer_default(level, fields, count, nullptr);
  const auto sentence = sentenceFor(message(fields, count));
  std::cerr << sentence << std::endl;
  reinterpret_cast<ShowSentence>(show)(sentence);
  return G_LOG_WRITER_HANDLED;
}

/// No option for anybody to give: the program alone gives it to itself.
constexpr auto option = "--show-last-words";

} // namespace

void explainFatalErrors(ShowSentence show) {
  g_log_set_writer_func(write, reinterpret_cast<gpointer>(show), nullptr);
}

void showInProgramOfItsOwn(const std::string& sentence) {
  if (isatty(STDERR_FILENO))
    return;
  std::array<std::string, 3> words{"/proc/self/exe", option, sentence};
  std::array<char*, 4> command{words[0].data(), words[1].data(), words[2].data(), nullptr};
  g_spawn_async(nullptr, command.data(), nullptr, G_SPAWN_DEFAULT, nullptr, nullptr, nullptr, nullptr);
}

std::optional<std::string> sentenceToShow(int argc, char** argv) {
  return argc == 3 && std::string_view(argv[1]) == option ? std::optional<std::string>(argv[2])
                                                          : std::nullopt;
}

} // namespace quorvel
