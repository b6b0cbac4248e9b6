#pragma once

#include "layout/Container.h"

#include <optional>

namespace quorvel {

/// Gives its one child an exact width, an exact height or both, in points, whatever the child would like; or
/// a least width or height, of which the frame asks for no more unless the child cannot do with it.
///
/// In a direction of which nothing is said the frame is as large as its child. The child is a managed widget
/// that the frame takes over; it fills the frame as far as its own alignment lets it.
class Frame : public Container {
 public:
  struct Size {
    std::optional<int> width = {}, height = {}, minimumWidth = {}, minimumHeight = {};
  };
  Frame(Size size, Gtk::Widget& child);

 protected:
  void measure_vfunc(Gtk::Orientation orientation, int forSize, int& minimum, int& natural,
                     int& minimumBaseline, int& naturalBaseline) const override;
  void size_allocate_vfunc(int width, int height, int baseline) override;

 private:
  std::optional<int> ownWidth() const;
  std::optional<int> ownHeight(int width) const;

  Size size_;
  Gtk::Widget& child_;
};

/// A frame whose child stands in its middle.
Frame* framed(Frame::Size size, Gtk::Widget* child);

/// A square of this side around a symbol or a few letters, and larger where large text needs more.
Frame* tile(int side, Gtk::Widget* child);

} // namespace quorvel
