#include "layout/RowLayout.h"

#include <algorithm>
#include <gtk/gtk.h>

namespace quorvel {
namespace {

std::vector<Gtk::Widget*> membersOf(const Gtk::Widget& row) {
  std::vector<Gtk::Widget*> members;
  for (auto* child = const_cast<Gtk::Widget&>(row).get_first_child(); child;
       child = child->get_next_sibling())
    if (child->should_layout())
      members.push_back(child);
  return members;
}

int gaps(const std::vector<Gtk::Widget*>& members, int spacing) {
  return spacing * std::max(0, static_cast<int>(members.size()) - 1);
}

std::vector<int> equalWidths(std::size_t count, int available) {
  std::vector<int> widths;
  for (auto left = static_cast<int>(count); left > 0; --left) {
    widths.push_back(available / left);
    available -= widths.back();
  }
  return widths;
}

} // namespace

std::vector<int> rowWidths(const std::vector<Gtk::Widget*>& members, int spacing, int available) {
  std::vector<GtkRequestedSize> sizes;
  int left = available - gaps(members, spacing);
  for (auto* member : members) {
    const auto request = widthRequest(*member);
    sizes.push_back({member, request.minimum, request.natural});
    left -= request.minimum;
  }
  left = gtk_distribute_natural_allocation(std::max(0, left), static_cast<guint>(sizes.size()), sizes.data());

  const auto expands = [](Gtk::Widget* member) {
    return member->compute_expand(Gtk::Orientation::HORIZONTAL);
  };
  auto expanding = static_cast<int>(std::ranges::count_if(members, expands));
  std::vector<int> widths;
  for (std::size_t i = 0; i < members.size(); ++i) {
    int share = 0;
    if (expands(members[i])) {
      share = left / expanding--;
      left -= share;
    }
    widths.push_back(sizes[i].minimum_size + share);
  }
  return widths;
}

RowLayout::RowLayout(int spacing) : Glib::ObjectBase("quorvel_RowLayout"), spacing_(spacing) {}

Glib::RefPtr<RowLayout> RowLayout::create(int spacing) {
  return Glib::make_refptr_for_instance<RowLayout>(new RowLayout(spacing));
}

void RowLayout::setEqualWidths() {
  areWidthsEqual_ = true;
  layout_changed();
}

Request RowLayout::totalWidth(const Members& members) const {
  Request sum, greatest;
  for (const auto* member : members) {
    const auto request = widthRequest(*member);
    sum.minimum += request.minimum;
    sum.natural += request.natural;
    greatest.minimum = std::max(greatest.minimum, request.minimum);
    greatest.natural = std::max(greatest.natural, request.natural);
  }
  const auto count = static_cast<int>(members.size());
  const int between = gaps(members, spacing_);
  if (areWidthsEqual_)
    return {count * greatest.minimum + between, count * greatest.natural + between};
  return {sum.minimum + between, sum.natural + between};
}

Request RowLayout::greatestHeight(const Members& members, int available) const {
  Request greatest;
  const auto given = widths(members, available);
  for (std::size_t i = 0; i < members.size(); ++i) {
    const auto request = heightRequest(*members[i], given[i]);
    greatest.minimum = std::max(greatest.minimum, request.minimum);
    greatest.natural = std::max(greatest.natural, request.natural);
  }
  return greatest;
}

std::vector<int> RowLayout::widths(const Members& members, int available) const {
  if (areWidthsEqual_)
    return equalWidths(members.size(), available - gaps(members, spacing_));
  return rowWidths(members, spacing_, available);
}

Gtk::SizeRequestMode RowLayout::get_request_mode_vfunc(const Gtk::Widget&) const {
  return Gtk::SizeRequestMode::HEIGHT_FOR_WIDTH;
}

void RowLayout::measure_vfunc(const Gtk::Widget& row, Gtk::Orientation orientation, int forSize, int& minimum,
                              int& natural, int& minimumBaseline, int& naturalBaseline) const {
  minimumBaseline = naturalBaseline = -1;
  const auto members = membersOf(row);
  auto request = totalWidth(members);
  if (orientation == Gtk::Orientation::VERTICAL)
    request = greatestHeight(members, forSize < 0 ? request.natural : forSize);
  minimum = request.minimum;
  natural = request.natural;
}

void RowLayout::allocate_vfunc(const Gtk::Widget& row, int width, int height, int) {
  const auto members = membersOf(row);
  const auto given = widths(members, width);
  int leading = 0;
  for (std::size_t i = 0; i < members.size(); ++i) {
    allocateFromLeadingEdge(*members[i], {leading, 0, given[i], height}, width);
    leading += given[i] + spacing_;
  }
}

} // namespace quorvel
