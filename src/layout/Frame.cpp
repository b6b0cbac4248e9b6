#include "layout/Frame.h"

#include <algorithm>

namespace quorvel {

Frame::Frame(Size size, Gtk::Widget& child) : size_(size), child_(child) {
  set_hexpand(!size.width && child.compute_expand(Gtk::Orientation::HORIZONTAL));
  set_vexpand(!size.height && child.compute_expand(Gtk::Orientation::VERTICAL));
  append(child_);
}

/// The width that the frame asks for by itself; nothing where that is the child's.
std::optional<int> Frame::ownWidth() const {
  if (size_.minimumWidth)
    return std::max(widthRequest(child_).minimum, *size_.minimumWidth);
  return size_.width;
}

std::optional<int> Frame::ownHeight(int width) const {
  if (size_.minimumHeight)
    return std::max(heightRequest(child_, width).minimum, *size_.minimumHeight);
  return size_.height;
}

void Frame::measure_vfunc(Gtk::Orientation orientation, int forSize, int& minimum, int& natural,
                          int& minimumBaseline, int& naturalBaseline) const {
  minimumBaseline = naturalBaseline = -1;
  const bool isHorizontal = orientation == Gtk::Orientation::HORIZONTAL;
  const int width = size_.width || forSize < 0 ? ownWidth().value_or(-1) : forSize;
  if (const auto own = isHorizontal ? ownWidth() : ownHeight(width)) {
    minimum = natural = *own;
    return;
  }
  const auto request = isHorizontal ? widthRequest(child_) : heightRequest(child_, width);
  minimum = request.minimum;
  natural = request.natural;
}

void Frame::size_allocate_vfunc(int width, int height, int baseline) {
  const int childWidth = std::max(width, widthRequest(child_).minimum);
  const int childHeight = std::max(height, heightRequest(child_, childWidth).minimum);
  child_.size_allocate(Gtk::Allocation(0, 0, childWidth, childHeight), baseline);
}

Frame* framed(Frame::Size size, Gtk::Widget* child) {
  child->set_halign(Gtk::Align::CENTER);
  child->set_valign(Gtk::Align::CENTER);
  return Gtk::make_managed<Frame>(size, *child);
}

Frame* tile(int side, Gtk::Widget* child) {
  return framed({.minimumWidth = side, .minimumHeight = side}, child);
}

} // namespace quorvel
