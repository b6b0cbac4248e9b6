#include "engine/OwnersCommand.h"

#include <utility>

namespace quorvel {

OwnersCommand::OwnersCommand(Means means) : means_(std::move(means)) {}

OwnersCommand::~OwnersCommand() {
  end();
}

void OwnersCommand::begin() {
  phase_ = Phase::asked;
  vainAnswers_ = 0;
  ask();
}

void OwnersCommand::end() {
  phase_ = Phase::none;
  timer_.disconnect();
}

void OwnersCommand::accepted() {
  if (phase_ != Phase::asked)
    return;
  phase_ = Phase::accepted;
  vainAnswers_ = 0;
}

void OwnersCommand::loadStarted() {
  // A load that starts earlier is one of the page's.
  if (phase_ == Phase::accepted)
    phase_ = Phase::started;
}

void OwnersCommand::loadBrokenOff() {
  if (phase_ == Phase::started)
    insist();
}

void OwnersCommand::loadFailed() {
  if (phase_ == Phase::accepted || phase_ == Phase::started)
    end();
}

void OwnersCommand::loadCommitted() {
  if (phase_ == Phase::started)
    end();
}

void OwnersCommand::answered(bool isLoading, bool isDone) {
  if (phase_ == Phase::none)
    return;
  // A process that lives accepts at once and starts soon, unless the page prevents it.
  const bool isVain = phase_ != Phase::started || !isLoading;
  vainAnswers_ = isVain ? vainAnswers_ + 1 : 0;
  if (isDone)
    end();
  else if (vainAnswers_ * interval >= patience)
    insist();
  else
    askLater();
}

void OwnersCommand::processEnded() {
  if (isUnderWay())
    insist();
}

void OwnersCommand::askLater() {
  timer_.disconnect();
  timer_ = means_.startTimer(interval, [this] { ask(); });
}

void OwnersCommand::ask() {
  timer_.disconnect();
  timer_ = means_.startTimer(patience, [this] { insist(); });
  means_.ask();
}

void OwnersCommand::insist() {
  end();
  means_.insist();
}

} // namespace quorvel
