#include "layout/FirstThatFits.h"

#include <algorithm>

namespace quorvel {

FirstThatFits::FirstThatFits(std::vector<Arrangement> arrangements) : arrangements_(std::move(arrangements)) {
  for (const auto& arrangement : arrangements_)
    for (auto* member : arrangement.members)
      if (!member->get_parent())
        append(*member);
}

std::size_t FirstThatFits::indexFor(int available) const {
  const auto fits = [&](const auto& arrangement) { return widthRequest(arrangement).natural <= available; };
  const auto first = std::find_if(arrangements_.begin(), arrangements_.end() - 1, fits);
  return static_cast<std::size_t>(first - arrangements_.begin());
}

void FirstThatFits::measure_vfunc(Gtk::Orientation orientation, int forSize, int& minimum, int& natural,
                                  int& minimumBaseline, int& naturalBaseline) const {
  minimumBaseline = naturalBaseline = -1;
  if (orientation == Gtk::Orientation::HORIZONTAL) {
    minimum = widthRequest(arrangements_.back()).minimum;
    natural = std::max(minimum, widthRequest(arrangements_.front()).natural);
    return;
  }
  const int available = forSize < 0 ? widthRequest(arrangements_.front()).natural : forSize;
  minimum = natural = heightRequest(arrangements_[indexFor(available)], available).natural;
}

void FirstThatFits::size_allocate_vfunc(int available, int height, int) {
  const auto& arrangement = arrangements_[indexFor(available)];
  for (auto* child = get_first_child(); child; child = child->get_next_sibling())
    child->set_child_visible(std::ranges::find(arrangement.members, child) != arrangement.members.end());
  arrange(arrangement, available, height);
}

} // namespace quorvel
