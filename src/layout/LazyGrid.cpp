#include "layout/LazyGrid.h"

#include "layout/columns.h"

#include <algorithm>
#include <utility>

namespace quorvel {
namespace {

/// How high a line is taken to be before one has been measured, and what is in sight before the first layout.
constexpr int firstEstimate = 150, firstSight = 1600;

} // namespace

LazyGrid::LazyGrid(Form form) : form_(form), heights_(firstEstimate, form.spacing) {
  set_hexpand(true);
  signal_map().connect(sigc::mem_fun(*this, &LazyGrid::enterViewport));
  signal_unmap().connect(sigc::mem_fun(*this, &LazyGrid::leaveViewport));
}

void LazyGrid::enterViewport() {
  viewport_ = dynamic_cast<Gtk::Viewport*>(get_ancestor(GTK_TYPE_VIEWPORT));
  if (viewport_) {
    scroll_ = viewport_->get_vadjustment();
    const auto onChange = sigc::mem_fun(*this, &LazyGrid::updateBeforeNextFrame);
    scrolling_ = {scroll_->signal_value_changed().connect(onChange),
                  scroll_->signal_changed().connect(onChange)};
  }
  update();
}

void LazyGrid::leaveViewport() {
  for (auto& connection : scrolling_)
    connection.disconnect();
  scrolling_.clear();
  scroll_.reset();
  viewport_ = nullptr;
}

/// Scrolling is also announced in the middle of a layout, where cells must neither come nor go.
void LazyGrid::updateBeforeNextFrame() {
  if (isUpdateDue_)
    return;
  isUpdateDue_ = true;
  add_tick_callback([this](const auto& /*frameClock*/) {
    isUpdateDue_ = false;
    update();
    return false;
  });
}

void LazyGrid::update() {
  followCount();
  // Lines may turn out lower or higher than estimated, which brings others into sight.
  auto wanted = wantedPlaces();
  do {
    const auto before = heights_;
    places_ = std::move(wanted);
    showCells(places_);
    if (width_ > 0)
      measureLines(heights_, width_, perLine_);
    keepInPlace(before);
    wanted = wantedPlaces();
  } while (wanted != places_);
}

/// Lists grow at their front: the cells that were there move on by as many places as came in. Where that
/// fills whole lines, the lines below are the same as before.
void LazyGrid::followCount() {
  if (width_ == 0)
    perLine_ = columnCount(expectedWidth());
  const auto added = count() - shownCount_;
  shownCount_ = count();
  if (added == 0 && heights_.count() == lineCount())
    return;
  for (auto& place : places_)
    place += added;
  if (added % perLine_ != 0)
    heights_.forget();
  heights_.setCount(lineCount());
  queue_resize();
}

/// The heights of one width say nothing about another one.
void LazyGrid::followWidth(int width) {
  const auto perLine = columnCount(width);
  if (width == width_ && perLine == perLine_)
    return;
  width_ = width;
  perLine_ = perLine;
  heights_.forget();
  heights_.setCount(lineCount());
}

/// Before the first layout, what the viewport will give it at the most.
int LazyGrid::expectedWidth() const {
  return viewport_ ? viewport_->get_width() : 0;
}

Request LazyGrid::columnWidth() const {
  Request widest;
  for (const auto* cell : visibleChildren(*this)) {
    const auto request = widthRequest(*cell);
    widest.minimum = std::max(widest.minimum, request.minimum);
    widest.natural = std::max(widest.natural, request.natural);
  }
  if (form_.minimumColumnWidth == 0)
    return widest;
  widestCell_ = std::max({widestCell_, widest.minimum, form_.minimumColumnWidth});
  return {widestCell_, widestCell_};
}

std::size_t LazyGrid::columnCount(int width) const {
  if (form_.minimumColumnWidth == 0)
    return 1;
  return static_cast<std::size_t>(Columns{columnWidth().minimum, form_.spacing}.count(width));
}

std::size_t LazyGrid::lineCount() const {
  return (count() + perLine_ - 1) / perLine_;
}

std::vector<std::size_t> LazyGrid::wantedPlaces() const {
  if (heights_.count() == 0)
    return {};
  std::size_t first = 0, last = heights_.count() - 1;
  if (viewport_ || !get_mapped()) {
    const double page = scroll_ ? scroll_->get_page_size() : 0;
    const int sight = page > 0 ? static_cast<int>(page) : firstSight;
    first = heights_.rowAt(sightTop() - sight / 2);
    last = heights_.rowAt(sightTop() + sight + sight / 2);
  }
  std::vector<std::size_t> wanted;
  const auto addLine = [&](std::size_t line) {
    for (std::size_t place = line * perLine_; place < std::min((line + 1) * perLine_, count()); ++place)
      wanted.push_back(place);
  };
  const auto cells = visibleChildren(*this);
  const auto focused = std::find(cells.begin(), cells.end(), get_focus_child()) - cells.begin();
  const auto focusedLine = static_cast<std::size_t>(focused) < places_.size()
                               ? places_[static_cast<std::size_t>(focused)] / perLine_
                               : first;
  if (focusedLine < first)
    addLine(focusedLine);
  for (auto line = first; line <= last; ++line)
    addLine(line);
  if (focusedLine > last)
    addLine(focusedLine);
  return wanted;
}

/// Where the visible part begins, from the top of this grid.
int LazyGrid::sightTop() const {
  if (!viewport_)
    return 0;
  // The scrolled content is where the last layout put it, which need not be where the scroll bar is by now.
  auto* content = viewport_->get_child();
  double x = 0, top = 0;
  const_cast<LazyGrid*>(this)->translate_coordinates(*content, 0, 0, x, top);
  return static_cast<int>(scroll_->get_value() - content->get_margin_top() - top);
}

/// What is in sight does not move because lines above it turned out higher or lower than they were taken to
/// be, and a list that was scrolled to its end stays there.
void LazyGrid::keepInPlace(const RowHeights& before) {
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

/// Calls `visit(cells, first)` for the cells of every line, of which the first stands at this place in the
/// list.
template <class Visit>
void LazyGrid::forEachLine(std::size_t perLine, const Visit& visit) const {
  const auto cells = visibleChildren(*this);
  const auto there = std::min(cells.size(), places_.size());
  for (std::size_t first = 0, end = 0; first < there; first = end) {
    for (end = first; end < there && places_[end] / perLine == places_[first] / perLine;)
      ++end;
    visit(std::vector(cells.begin() + static_cast<std::ptrdiff_t>(first),
                      cells.begin() + static_cast<std::ptrdiff_t>(end)),
          places_[first]);
  }
}

/// Of the cells that are there: as long as a line lacks some, its height is not to be relied on.
int LazyGrid::lineHeight(const std::vector<Gtk::Widget*>& cells, int width, std::size_t perLine) const {
  int height = 0;
  for (std::size_t i = 0; i < cells.size(); ++i)
    height =
        std::max(height, heightRequest(*cells[i], columnAt(i, perLine, width, form_.spacing).width).natural);
  return height;
}

void LazyGrid::measureLines(RowHeights& heights, int width, std::size_t perLine) const {
  forEachLine(perLine, [&](const auto& cells, std::size_t first) {
    const bool isWhole = first % perLine == 0 && (cells.size() == perLine || first + cells.size() == count());
    if (isWhole && first / perLine < heights.count())
      heights.setHeight(first / perLine, lineHeight(cells, width, perLine));
  });
}

void LazyGrid::measure_vfunc(Gtk::Orientation orientation, int forSize, int& minimum, int& natural,
                             int& minimumBaseline, int& naturalBaseline) const {
  minimumBaseline = naturalBaseline = -1;
  const auto width = columnWidth();
  if (orientation == Gtk::Orientation::HORIZONTAL) {
    minimum = width.minimum;
    natural = width.natural;
    return;
  }
  const int available = forSize < 0 ? width.natural : forSize;
  const auto perLine = columnCount(available);
  auto heights = heights_;
  if (available != width_ || perLine != perLine_) {
    heights.forget();
    heights.setCount((count() + perLine - 1) / perLine);
  }
  measureLines(heights, available, perLine);
  minimum = natural = heights.total();
}

void LazyGrid::size_allocate_vfunc(int width, int, int) {
  followWidth(width);
  measureLines(heights_, width, perLine_);
  forEachLine(perLine_, [&](const auto& cells, std::size_t first) {
    const int top = heights_.top(first / perLine_), height = lineHeight(cells, width, perLine_);
    for (std::size_t i = 0; i < cells.size(); ++i) {
      const auto [x, cellWidth] = columnAt((first + i) % perLine_, perLine_, width, form_.spacing);
      const int cellHeight = heightRequest(*cells[i], cellWidth).natural;
      allocateFromLeadingEdge(*cells[i], {x, top + (height - cellHeight) / 2, cellWidth, cellHeight}, width);
    }
  });
  if (wantedPlaces() != places_)
    updateBeforeNextFrame();
}

} // namespace quorvel
