#include "Frame.h"

#include <algorithm>

namespace quorvel {

Frame::Frame(Size size, Gtk::Widget& child) : size_(size), child_(child) {
  if (size.width)
    set_hexpand(false);
  if (size.height)
    set_vexpand(false);
  append(child_);
}

void Frame::measure_vfunc(Gtk::Orientation orientation, int forSize, int& minimum, int& natural,
                          int& minimumBaseline, int& naturalBaseline) const {
  minimumBaseline = naturalBaseline = -1;
  const bool isHorizontal = orientation == Gtk::Orientation::HORIZONTAL;
  if (const auto fixed = isHorizontal ? size_.width : size_.height) {
    minimum = natural = *fixed;
    return;
  }
  const auto request =
      isHorizontal ? widthRequest(child_) : heightRequest(child_, size_.width.value_or(forSize));
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

} // namespace quorvel
