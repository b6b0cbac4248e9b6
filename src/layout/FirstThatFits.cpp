#include "layout/FirstThatFits.h"

#include "layout/RowLayout.h"

#include <algorithm>

namespace quorvel {
namespace {

using Form = FirstThatFits::Form;

bool isRow(const Form& form) {
  return form.orientation == Gtk::Orientation::HORIZONTAL;
}

int gaps(const Form& form) {
  return form.spacing * std::max(0, static_cast<int>(form.members.size()) - 1);
}

Request width(const Form& form) {
  Request total;
  for (const auto* member : form.members) {
    const auto request = widthRequest(*member);
    if (isRow(form)) {
      total.minimum += request.minimum;
      total.natural += request.natural;
    } else {
      total.minimum = std::max(total.minimum, request.minimum);
      total.natural = std::max(total.natural, request.natural);
    }
  }
  if (isRow(form)) {
    total.minimum += gaps(form);
    total.natural += gaps(form);
  }
  return total;
}

int height(const Form& form, int available) {
  int total = 0;
  if (isRow(form)) {
    const auto widths = rowWidths(form.members, form.spacing, available);
    for (std::size_t i = 0; i < form.members.size(); ++i)
      total = std::max(total, heightRequest(*form.members[i], widths[i]).natural);
    return total;
  }
  for (const auto* member : form.members)
    total += heightRequest(*member, available).natural;
  return total + gaps(form);
}

} // namespace

FirstThatFits::FirstThatFits(std::vector<Form> forms) : forms_(std::move(forms)) {
  for (const auto& form : forms_)
    for (auto* member : form.members)
      if (!member->get_parent())
        append(*member);
}

std::size_t FirstThatFits::formFor(int available) const {
  const auto fits = [&](const Form& form) { return width(form).natural <= available; };
  const auto first = std::find_if(forms_.begin(), forms_.end() - 1, fits);
  return static_cast<std::size_t>(first - forms_.begin());
}

void FirstThatFits::measure_vfunc(Gtk::Orientation orientation, int forSize, int& minimum, int& natural,
                                  int& minimumBaseline, int& naturalBaseline) const {
  minimumBaseline = naturalBaseline = -1;
  if (orientation == Gtk::Orientation::HORIZONTAL) {
    minimum = width(forms_.back()).minimum;
    natural = std::max(minimum, width(forms_.front()).natural);
    return;
  }
  const int available = forSize < 0 ? width(forms_.front()).natural : forSize;
  minimum = natural = height(forms_[formFor(available)], available);
}

void FirstThatFits::size_allocate_vfunc(int available, int height, int) {
  const auto& form = forms_[formFor(available)];
  for (auto* child = get_first_child(); child; child = child->get_next_sibling())
    child->set_child_visible(std::ranges::find(form.members, child) != form.members.end());
  place(form, available, height);
}

void FirstThatFits::place(const Form& form, int available, int height) {
  if (isRow(form)) {
    const auto widths = rowWidths(form.members, form.spacing, available);
    int x = 0;
    for (std::size_t i = 0; i < form.members.size(); ++i) {
      allocateFromLeadingEdge(*form.members[i], {x, 0, widths[i], height}, available);
      x += widths[i] + form.spacing;
    }
    return;
  }
  int y = 0;
  for (auto* member : form.members) {
    const int memberHeight = heightRequest(*member, available).natural;
    member->size_allocate(Gtk::Allocation(0, y, available, memberHeight), -1);
    y += memberHeight + form.spacing;
  }
}

} // namespace quorvel
