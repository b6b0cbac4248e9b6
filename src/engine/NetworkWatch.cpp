#include "engine/NetworkWatch.h"

#include "engine/SystemProcess.h"

#include <csignal>
#include <utility>
#include <vector>

namespace quorvel {
namespace {

std::vector<SystemProcess> networkProcesses() {
  return SystemProcess::ourselves().descendants("WebKitNetworkProcess");
}

} // namespace

NetworkWatch::NetworkWatch(TimerFunction startTimer, Owner owner)
    : startTimer_(std::move(startTimer)), owner_(std::move(owner)) {}

NetworkWatch::~NetworkWatch() {
  timer_.disconnect();
}

void NetworkWatch::commandGiven() {
  if (timer_.connected() && owner_.isWaiting())
    return;
  next_ = Next::page;
  start(patience, &NetworkWatch::endIfStopped);
}

void NetworkWatch::pageReplaced() {
  // That process is ended once for each command: where a machine is too slow for the next one, it stays so.
  if (next_ == Next::page)
    next_ = Next::network;
  beginLook();
}

/// The engine has no public name for it.
bool NetworkWatch::hasLost(const GError* error) {
  constexpr int internalError = 300;
  return g_error_matches(error, g_quark_from_static_string("WebKitErrorDomain"), internalError);
}

void NetworkWatch::start(std::chrono::milliseconds delay, void (NetworkWatch::*task)()) {
  timer_.disconnect();
  timer_ = startTimer_(delay, [this, task] {
    if (owner_.isWaiting())
      (this->*task)();
  });
}

void NetworkWatch::endIfStopped() {
  for (const auto& each : networkProcesses())
    if (each.isStopped())
      ::kill(each.id(), SIGKILL);
  beginLook();
}

void NetworkWatch::beginLook() {
  work_.clear();
  lookedAt_ = Clock::now();
  for (const auto& each : networkProcesses())
    work_.emplace(each.id(), each.timeAtWork());
  start(look, &NetworkWatch::endLook);
}

void NetworkWatch::endLook() {
  const auto busy = restless();
  if (busy.empty())
    return;
  if (next_ == Next::page) {
    owner_.replacePage();
  } else if (next_ == Next::network && !owner_.isDownloading()) {
    next_ = Next::nobody;
    for (const pid_t each : busy)
      ::kill(each, SIGKILL);
  }
}

/// Those that have had something to do nearly all the time. It takes the kernel a while to count it.
std::vector<pid_t> NetworkWatch::restless() const {
  const auto nearlyAll = (Clock::now() - lookedAt_) * 8 / 10;
  std::vector<pid_t> found;
  for (const auto& each : networkProcesses())
    if (const auto before = work_.find(each.id());
        before != work_.end() && each.timeAtWork() - before->second > nearlyAll)
      found.push_back(each.id());
  return found;
}

} // namespace quorvel
