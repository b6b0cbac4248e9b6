#include "client/AddressField.h"

#include "brand/surfaces.h"
#include "brand/symbol.h"
#include "brand/text.h"
#include "client/displayedAddress.h"
#include "layout/Container.h"
#include "layout/accessible.h"

#include <algorithm>

namespace quorvel {
namespace {

Gtk::Label* part(Pango::EllipsizeMode where) {
  auto* label = singleLine("", {TextStyle::caption, FontWeight::semibold, TextColor::secondaryInk}, where);
  label->set_direction(Gtk::TextDirection::LTR);
  return label;
}

} // namespace

/// Origin and rest side by side, in the direction of addresses. The rest gives way to the origin.
class AddressField::Line : public Container {
 public:
  Line() {
    property_accessible_role() = Role::LABEL;
    for (auto* label : {origin_, rest_}) {
      append(*label);
      setAccessiblyHidden(*label);
    }
  }

  void show(const DisplayedAddress& address) {
    origin_->set_text(address.origin);
    rest_->set_text(address.rest);
    rest_->set_visible(!address.rest.empty());
    setAccessibleName(*this, address.origin + address.rest);
  }

 protected:
  void measure_vfunc(Gtk::Orientation orientation, int, int& minimum, int& natural, int& minimumBaseline,
                     int& naturalBaseline) const override;
  void size_allocate_vfunc(int width, int height, int baseline) override;

 private:
  Gtk::Label* origin_ = part(Pango::EllipsizeMode::START);
  Gtk::Label* rest_ = part(Pango::EllipsizeMode::MIDDLE);
};

void AddressField::Line::measure_vfunc(Gtk::Orientation orientation, int, int& minimum, int& natural,
                                       int& minimumBaseline, int& naturalBaseline) const {
  minimumBaseline = naturalBaseline = -1;
  const bool isHorizontal = orientation == Gtk::Orientation::HORIZONTAL;
  minimum = natural = 0;
  for (const auto* label : visibleChildren(*this)) {
    const auto request = isHorizontal ? widthRequest(*label) : heightRequest(*label, -1);
    minimum = isHorizontal ? minimum + request.minimum : std::max(minimum, request.minimum);
    natural = isHorizontal ? natural + request.natural : std::max(natural, request.natural);
  }
}

void AddressField::Line::size_allocate_vfunc(int width, int height, int) {
  const int leastRest = rest_->should_layout() ? widthRequest(*rest_).minimum : 0;
  const int origin = std::min(widthRequest(*origin_).natural, width - leastRest);
  const int rest = rest_->should_layout() ? std::min(widthRequest(*rest_).natural, width - origin) : 0;
  // The address reads from the left and stands where lines of text begin.
  const int left = get_direction() == Gtk::TextDirection::RTL ? width - origin - rest : 0;
  origin_->size_allocate(Gtk::Allocation(left, 0, origin, height), -1);
  if (rest_->should_layout())
    rest_->size_allocate(Gtk::Allocation(left + origin, 0, rest, height), -1);
}

AddressField::AddressField() : HStack(0), line_(*Gtk::make_managed<Line>()) {
  auto* lock = symbol("lock.fill", {TextStyle::caption, FontWeight::bold, TextColor::green});
  add({raisedPanel(Outline::line, padded(12, 8, hstack(8, {lock, stretched(&line_)})))});
}

void AddressField::show(const std::string& address) {
  line_.show(displayedAddress(address));
}

} // namespace quorvel
