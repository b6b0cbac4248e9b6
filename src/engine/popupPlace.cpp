#include "engine/popupPlace.h"

#include <algorithm>

namespace quorvel {
namespace {

/// From one edge to the other, along one side of the view.
struct Stretch {
  int begin, end;
};

Stretch visiblePart(int begin, int length, int view) {
  return {std::clamp(begin, 0, view), std::clamp(begin + length, 0, view)};
}

bool isSame(const GdkRectangle& one, const GdkRectangle& other) {
  return gdk_rectangle_equal(&one, &other);
}

PopupPlace placeOf(GtkPopover* popup) {
  PopupPlace place{{}, gtk_popover_get_position(popup)};
  gtk_popover_get_pointing_to(popup, &place.pointingTo);
  return place;
}

void moveIntoView(GtkPopover* popup) {
  auto* view = gtk_widget_get_parent(GTK_WIDGET(popup));
  GtkRequisition size;
  gtk_widget_get_preferred_size(GTK_WIDGET(popup), nullptr, &size);
  const auto wanted = placeOf(popup);
  const auto place = popupPlace(wanted, size, {gtk_widget_get_width(view), gtk_widget_get_height(view)});
  gtk_popover_set_position(popup, place.side);
  if (!isSame(place.pointingTo, wanted.pointingTo))
    gtk_popover_set_pointing_to(popup, &place.pointingTo);
}

} // namespace

PopupPlace popupPlace(PopupPlace wanted, GtkRequisition popup, GtkRequisition view) {
  const auto& asked = wanted.pointingTo;
  auto [left, right] = visiblePart(asked.x, asked.width, view.width);
  auto [top, bottom] = visiblePart(asked.y, asked.height, view.height);
  const bool fitsAbove = popup.height <= top, fitsBelow = bottom + popup.height <= view.height;
  if (!fitsAbove && !fitsBelow)
    top = std::min(top, bottom = std::max(0, view.height - popup.height));
  const bool isAbove = fitsAbove && (!fitsBelow || wanted.side == GTK_POS_TOP);
  const int half = std::min(popup.width, view.width) / 2;
  const int middle = (left + right) / 2, middleInView = std::clamp(middle, half, view.width - half);
  if (middle != middleInView)
    left = right = middleInView;
  return {{left, top, std::max(1, right - left), std::max(1, bottom - top)},
          isAbove ? GTK_POS_TOP : GTK_POS_BOTTOM};
}

void keepInView(GtkPopover* popup) {
  // It has no size before it is shown.
  for (const char* change : {"show", "notify::pointing-to", "notify::child"})
    g_signal_connect(popup, change, G_CALLBACK(moveIntoView), nullptr);
}

} // namespace quorvel
