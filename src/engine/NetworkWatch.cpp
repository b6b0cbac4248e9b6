#include "engine/NetworkWatch.h"

#include "engine/SystemProcess.h"

#include <csignal>
#include <utility>

namespace quorvel {

NetworkWatch::NetworkWatch(TimerFunction startTimer, std::function<bool()> isWaitedFor)
    : startTimer_(std::move(startTimer)), isWaitedFor_(std::move(isWaitedFor)) {}

NetworkWatch::~NetworkWatch() {
  timer_.disconnect();
}

void NetworkWatch::restart() {
  timer_.disconnect();
  timer_ = startTimer_(patience, [this] { endIfStopped(); });
}

/// The engine has no public name for it.
bool NetworkWatch::hasLost(const GError* error) {
  constexpr int internalError = 300;
  return g_error_matches(error, g_quark_from_static_string("WebKitErrorDomain"), internalError);
}

void NetworkWatch::endIfStopped() const {
  if (!isWaitedFor_())
    return;
  for (const auto& each : SystemProcess::ourselves().descendants("WebKitNetworkProcess"))
    if (each.isStopped())
      ::kill(each.id(), SIGKILL);
}

} // namespace quorvel
