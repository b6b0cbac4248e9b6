#include "layout/LazyColumn.h"

#include <algorithm>
#include <numeric>

namespace quorvel {
namespace {

/// How high a row is taken to be before one has been measured, and what is in sight before the first layout.
constexpr int firstEstimate = 150, firstSight = 1600;

} // namespace

LazyColumn::LazyColumn(int spacing) : spacing_(spacing), heights_(firstEstimate, spacing) {
  set_hexpand(true);
  signal_map().connect(sigc::mem_fun(*this, &LazyColumn::enterViewport));
  signal_unmap().connect(sigc::mem_fun(*this, &LazyColumn::leaveViewport));
}

void LazyColumn::enterViewport() {
  viewport_ = dynamic_cast<Gtk::Viewport*>(get_ancestor(GTK_TYPE_VIEWPORT));
  if (viewport_) {
    scroll_ = viewport_->get_vadjustment();
    const auto onChange = sigc::mem_fun(*this, &LazyColumn::updateBeforeNextFrame);
    scrolling_ = {scroll_->signal_value_changed().connect(onChange),
                  scroll_->signal_changed().connect(onChange)};
  }
  update();
}

void LazyColumn::leaveViewport() {
  for (auto& connection : scrolling_)
    connection.disconnect();
  scrolling_.clear();
  scroll_.reset();
  viewport_ = nullptr;
}

/// Scrolling is also announced in the middle of a layout, where rows must neither come nor go.
void LazyColumn::updateBeforeNextFrame() {
  if (isUpdateDue_)
    return;
  isUpdateDue_ = true;
  add_tick_callback([this](const auto& /*frameClock*/) {
    isUpdateDue_ = false;
    update();
    return false;
  });
}

void LazyColumn::update() {
  followCount();
  // Rows may turn out lower or higher than estimated, which brings others into sight.
  auto wanted = wantedPlaces();
  do {
    const auto before = heights_;
    places_ = std::move(wanted);
    showRows(places_);
    if (width_ > 0)
      measureRows(heights_, width_);
    keepInPlace(before);
    wanted = wantedPlaces();
  } while (wanted != places_);
}

/// Lists grow at their front: the rows that were there move down by as many places as came in.
void LazyColumn::followCount() {
  if (count() == heights_.count())
    return;
  const auto added = count() - heights_.count();
  for (auto& place : places_)
    place += added;
  heights_.setCount(count());
  queue_resize();
}

std::vector<std::size_t> LazyColumn::wantedPlaces() const {
  if (heights_.count() == 0)
    return {};
  std::size_t first = 0, last = heights_.count() - 1;
  if (viewport_ || !get_mapped()) {
    const double page = scroll_ ? scroll_->get_page_size() : 0;
    const int sight = page > 0 ? static_cast<int>(page) : firstSight;
    first = heights_.rowAt(sightTop() - sight / 2);
    last = heights_.rowAt(sightTop() + sight + sight / 2);
  }
  std::vector<std::size_t> wanted(last - first + 1);
  std::iota(wanted.begin(), wanted.end(), first);
  forEachRow([&](const Gtk::Widget& row, std::size_t place) {
    if (&row == get_focus_child() && (place < first || place > last))
      wanted.insert(place < first ? wanted.begin() : wanted.end(), place);
  });
  return wanted;
}

/// Where the visible part begins, from the top of this column.
int LazyColumn::sightTop() const {
  if (!viewport_)
    return 0;
  // The scrolled content is where the last layout put it, which need not be where the scroll bar is by now.
  auto* content = viewport_->get_child();
  double x = 0, top = 0;
  const_cast<LazyColumn*>(this)->translate_coordinates(*content, 0, 0, x, top);
  return static_cast<int>(scroll_->get_value() - content->get_margin_top() - top);
}

/// What is in sight does not move because rows above it turned out higher or lower than they were taken to
/// be, and a list that was scrolled to its end stays there.
void LazyColumn::keepInPlace(const RowHeights& before) {
  const int growth = heights_.total() - before.total();
  if (growth != 0)
    queue_resize();
  if (!viewport_ || heights_.count() == 0)
    return;
  const double end = scroll_->get_upper() - scroll_->get_page_size();
  const auto firstInSight = before.rowAt(sightTop());
  const int growthAbove = heights_.top(firstInSight) - before.top(firstInSight);
  const int shift = scroll_->get_value() >= end ? growth : growthAbove;
  if (end <= 0 || shift == 0)
    return;
  scroll_->set_upper(scroll_->get_upper() + growth);
  scroll_->set_value(scroll_->get_value() + shift);
}

template <class Visit>
void LazyColumn::forEachRow(Visit&& visit) const {
  const auto rows = visibleChildren();
  for (std::size_t i = 0; i < std::min(rows.size(), places_.size()); ++i)
    if (places_[i] < heights_.count())
      visit(*rows[i], places_[i]);
}

void LazyColumn::measureRows(RowHeights& heights, int width) const {
  forEachRow([&](const Gtk::Widget& row, std::size_t place) {
    heights.setHeight(place, heightRequest(row, width).natural);
  });
}

void LazyColumn::measure_vfunc(Gtk::Orientation orientation, int forSize, int& minimum, int& natural,
                               int& minimumBaseline, int& naturalBaseline) const {
  minimumBaseline = naturalBaseline = -1;
  Request width;
  forEachRow([&](const Gtk::Widget& row, std::size_t) {
    const auto request = widthRequest(row);
    width.minimum = std::max(width.minimum, request.minimum);
    width.natural = std::max(width.natural, request.natural);
  });
  if (orientation == Gtk::Orientation::HORIZONTAL) {
    minimum = width.minimum;
    natural = width.natural;
    return;
  }
  const int available = forSize < 0 ? width.natural : forSize;
  auto heights = heights_;
  if (available != width_) {
    heights = RowHeights(firstEstimate, spacing_);
    heights.setCount(heights_.count());
  }
  measureRows(heights, available);
  minimum = natural = heights.total();
}

void LazyColumn::size_allocate_vfunc(int width, int, int) {
  if (width != width_) {
    width_ = width;
    heights_ = RowHeights(firstEstimate, spacing_);
    heights_.setCount(count());
  }
  measureRows(heights_, width);
  forEachRow([&](Gtk::Widget& row, std::size_t place) {
    row.size_allocate(Gtk::Allocation(0, heights_.top(place), width, heightRequest(row, width).natural), -1);
  });
  if (wantedPlaces() != places_)
    updateBeforeNextFrame();
}

} // namespace quorvel
