#include "client/ShownDownloads.h"

#include <algorithm>
#include <utility>

namespace quorvel {
namespace {

void put(std::vector<Download>& list, const Download& download) {
  const auto known = std::ranges::find(list, download.id, &Download::id);
  if (known == list.end())
    list.push_back(download);
  else
    *known = download;
}

} // namespace

ShownDownloads::ShownDownloads(TimerFunction startTimer) : startTimer_(std::move(startTimer)) {}

ShownDownloads::~ShownDownloads() {
  pending_.disconnect();
}

void ShownDownloads::show(const Download& download) {
  list.update([&](auto& shown) {
    put(shown, download);
    std::erase_if(shown, [](const auto& each) { return each.state == Download::State::cancelled; });
  });
  if (download.state != Download::State::underWay)
    restart();
}

void ShownDownloads::setLookedAt(bool isLookedAt) {
  isLookedAt_ = isLookedAt;
  restart();
}

void ShownDownloads::restart() {
  pending_.disconnect();
  if (!isLookedAt_)
    pending_ = startTimer_(stay, [this] { removeEnded(); });
}

void ShownDownloads::removeEnded() {
  list.update([](auto& shown) {
    std::erase_if(shown, [](const auto& each) { return each.state != Download::State::underWay; });
  });
}

} // namespace quorvel
