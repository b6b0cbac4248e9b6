#include "layout/Arrangement.h"

#include <algorithm>
#include <gtk/gtk.h>

namespace quorvel {
namespace {

using Gtk::Orientation;

int gaps(const Arrangement& arrangement) {
  return arrangement.spacing * std::max(0, static_cast<int>(arrangement.members.size()) - 1);
}

Request sum(const std::vector<Request>& requests, int gaps) {
  Request sum{gaps, gaps};
  for (const auto& request : requests) {
    sum.minimum += request.minimum;
    sum.natural += request.natural;
  }
  return sum;
}

Request greatest(const std::vector<Request>& requests) {
  Request greatest;
  for (const auto& request : requests) {
    greatest.minimum = std::max(greatest.minimum, request.minimum);
    greatest.natural = std::max(greatest.natural, request.natural);
  }
  return greatest;
}

std::vector<Request> widthRequests(const Arrangement& arrangement) {
  std::vector<Request> requests;
  for (const auto* member : arrangement.members)
    requests.push_back(widthRequest(*member));
  return requests;
}

std::vector<Request> heightRequests(const Arrangement& arrangement, const std::vector<int>& widths) {
  std::vector<Request> requests;
  for (std::size_t i = 0; i < widths.size(); ++i)
    requests.push_back(heightRequest(*arrangement.members[i], widths[i]));
  return requests;
}

std::vector<int> equalShares(std::size_t count, int available) {
  std::vector<int> shares;
  for (auto left = static_cast<int>(count); left > 0; --left) {
    shares.push_back(available / left);
    available -= shares.back();
  }
  return shares;
}

/// Of what there is along the arrangement: what each member would like as far as there is room, and a share
/// of what is left where it expands.
std::vector<int> shares(const Arrangement& arrangement, const std::vector<Request>& requests, int available) {
  std::vector<GtkRequestedSize> sizes;
  for (const auto& request : requests) {
    sizes.push_back({nullptr, request.minimum, request.natural});
    available -= request.minimum;
  }
  available = gtk_distribute_natural_allocation(std::max(0, available), static_cast<guint>(sizes.size()),
                                                sizes.data());

  const auto expands = [&](Gtk::Widget* member) { return member->compute_expand(arrangement.orientation); };
  auto expanding = static_cast<int>(std::ranges::count_if(arrangement.members, expands));
  std::vector<int> result;
  for (std::size_t i = 0; i < sizes.size(); ++i) {
    const int share = expands(arrangement.members[i]) ? available / expanding-- : 0;
    available -= share;
    result.push_back(sizes[i].minimum_size + share);
  }
  return result;
}

/// Of what there is across the arrangement: what the member would like, or all of it.
template <class Natural>
int lengthAcross(const Arrangement& arrangement, Gtk::Widget& member, int available, Natural natural) {
  const bool isRow = arrangement.orientation == Orientation::HORIZONTAL;
  const bool fills = arrangement.alignment == Gtk::Align::FILL ||
                     member.compute_expand(isRow ? Orientation::VERTICAL : Orientation::HORIZONTAL);
  return fills ? available : std::min(available, natural());
}

std::vector<int> widths(const Arrangement& arrangement, int available) {
  const int left = available - gaps(arrangement);
  if (arrangement.areWidthsEqual)
    return equalShares(arrangement.members.size(), left);
  if (arrangement.orientation == Orientation::HORIZONTAL)
    return shares(arrangement, widthRequests(arrangement), left);
  std::vector<int> result;
  for (auto* member : arrangement.members)
    result.push_back(
        lengthAcross(arrangement, *member, available, [&] { return widthRequest(*member).natural; }));
  return result;
}

std::vector<int> heights(const Arrangement& arrangement, const std::vector<int>& widths, int available) {
  if (arrangement.orientation == Orientation::VERTICAL)
    return shares(arrangement, heightRequests(arrangement, widths), available - gaps(arrangement));
  std::vector<int> result;
  for (std::size_t i = 0; i < widths.size(); ++i) {
    auto& member = *arrangement.members[i];
    result.push_back(lengthAcross(arrangement, member, available,
                                  [&] { return heightRequest(member, widths[i]).natural; }));
  }
  return result;
}

/// Where something begins that is not as long as its room.
int start(Gtk::Align alignment, int room, int length) {
  switch (alignment) {
  case Gtk::Align::CENTER:
    return (room - length) / 2;
  case Gtk::Align::END:
    return room - length;
  default:
    return 0;
  }
}

} // namespace

Request widthRequest(const Arrangement& arrangement) {
  const auto requests = widthRequests(arrangement);
  if (arrangement.orientation == Orientation::VERTICAL)
    return greatest(requests);
  if (arrangement.areWidthsEqual)
    return sum(std::vector(requests.size(), greatest(requests)), gaps(arrangement));
  return sum(requests, gaps(arrangement));
}

Request heightRequest(const Arrangement& arrangement, int width) {
  const int available = width < 0 ? widthRequest(arrangement).natural : width;
  const auto requests = heightRequests(arrangement, widths(arrangement, available));
  return arrangement.orientation == Orientation::VERTICAL ? sum(requests, gaps(arrangement))
                                                          : greatest(requests);
}

void arrange(const Arrangement& arrangement, int width, int height) {
  const auto given = widths(arrangement, width);
  const auto high = heights(arrangement, given, height);
  const bool isRow = arrangement.orientation == Orientation::HORIZONTAL;
  int along = 0;
  for (std::size_t i = 0; i < given.size(); ++i) {
    const int across =
        isRow ? start(arrangement.alignment, height, high[i]) : start(arrangement.alignment, width, given[i]);
    const Gtk::Allocation place(isRow ? along : across, isRow ? across : along, given[i], high[i]);
    allocateFromLeadingEdge(*arrangement.members[i], place, width);
    along += (isRow ? given[i] : high[i]) + arrangement.spacing;
  }
}

} // namespace quorvel
