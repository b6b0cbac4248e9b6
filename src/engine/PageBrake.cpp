#include "engine/PageBrake.h"

#include "engine/SystemProcess.h"

#include <csignal>
#include <unistd.h>
extern "C" { // which the header itself says only from glibc 2.37 on
#include <sys/pidfd.h>
}

namespace quorvel {
namespace {

/// To look for them takes milliseconds, which would be too much for each word of a page.
constexpr std::chrono::seconds untilPagesChange{1};

void signal(const std::vector<int>& processes, int number) {
  for (const int each : processes)
    ::pidfd_send_signal(each, number, nullptr, 0);
}

} // namespace

PageBrake::~PageBrake() {
  release();
  forgetPages();
}

void PageBrake::hold() {
  if (isHeld_)
    return;
  if (Clock::now() - lookedAt_ > untilPagesChange)
    lookForPages();
  isHeld_ = true;
  signal(pages_, SIGSTOP);
}

void PageBrake::release() {
  if (isHeld_)
    signal(pages_, SIGCONT);
  isHeld_ = false;
}

void PageBrake::lookForPages() {
  forgetPages();
  for (const auto& page : SystemProcess::ourselves().descendants("WebKitWebProcess"))
    if (const int process = page.isStopped() ? -1 : ::pidfd_open(page.id(), 0); process >= 0)
      pages_.push_back(process);
  lookedAt_ = Clock::now();
}

void PageBrake::forgetPages() {
  for (const int each : pages_)
    ::close(each);
  pages_.clear();
}

} // namespace quorvel
