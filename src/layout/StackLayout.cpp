#include "layout/StackLayout.h"

#include <utility>

namespace quorvel {

StackLayout::StackLayout(Arrangement arrangement)
    : Glib::ObjectBase("quorvel_StackLayout"), arrangement_(std::move(arrangement)) {}

Glib::RefPtr<StackLayout> StackLayout::create(Gtk::Orientation orientation, int spacing,
                                              Gtk::Align alignment) {
  return Glib::make_refptr_for_instance<StackLayout>(new StackLayout(
      {.orientation = orientation, .spacing = spacing, .members = {}, .alignment = alignment}));
}

void StackLayout::setEqualWidths() {
  arrangement_.areWidthsEqual = true;
  layout_changed();
}

Arrangement StackLayout::arrangementOf(const Gtk::Widget& stack) const {
  auto arrangement = arrangement_;
  arrangement.members = visibleChildren(stack);
  return arrangement;
}

Gtk::SizeRequestMode StackLayout::get_request_mode_vfunc(const Gtk::Widget&) const {
  return Gtk::SizeRequestMode::HEIGHT_FOR_WIDTH;
}

void StackLayout::measure_vfunc(const Gtk::Widget& stack, Gtk::Orientation orientation, int forSize,
                                int& minimum, int& natural, int& minimumBaseline,
                                int& naturalBaseline) const {
  minimumBaseline = naturalBaseline = -1;
  const auto arrangement = arrangementOf(stack);
  const auto request = orientation == Gtk::Orientation::HORIZONTAL ? widthRequest(arrangement)
                                                                   : heightRequest(arrangement, forSize);
  minimum = request.minimum;
  natural = request.natural;
}

void StackLayout::allocate_vfunc(const Gtk::Widget& stack, int width, int height, int) {
  arrange(arrangementOf(stack), width, height);
}

} // namespace quorvel
