#include "engine/popupPlace.h"

#include <gtest/gtest.h>

namespace quorvel {
namespace {

constexpr GtkRequisition view{800, 600}, popup{300, 200};

/// The popup itself, in the measure of the view: beside the middle of what it points to.
GdkRectangle shown(const GdkRectangle& field, GtkPositionType side = GTK_POS_BOTTOM,
                   GtkRequisition size = popup) {
  const auto [at, where] = popupPlace({field, side}, size, view);
  return {at.x + at.width / 2 - size.width / 2, where == GTK_POS_TOP ? at.y - size.height : at.y + at.height,
          size.width, size.height};
}

bool isInView(const GdkRectangle& place) {
  return place.x >= 0 && place.y >= 0 && place.x + place.width <= view.width + 1 &&
         place.y + place.height <= view.height + 1;
}

TEST(PopupPlace, WhereThereIsRoomItIsAsThePageWants) {
  const GdkRectangle field{300, 250, 200, 20};
  for (const auto side : {GTK_POS_TOP, GTK_POS_BOTTOM}) {
    const auto place = popupPlace({field, side}, popup, view);
    EXPECT_TRUE(gdk_rectangle_equal(&place.pointingTo, &field));
    EXPECT_EQ(place.side, side);
  }
}

TEST(PopupPlace, WithoutRoomOnOneSideOfTheFieldItIsOnTheOther) {
  EXPECT_EQ(shown({300, 100, 200, 20}, GTK_POS_TOP).y, 120);
  EXPECT_EQ(shown({300, 500, 200, 20}, GTK_POS_BOTTOM).y, 300);
}

TEST(PopupPlace, WhereverTheFieldIsThePopupIsInTheView) {
  for (const auto side : {GTK_POS_TOP, GTK_POS_BOTTOM})
    for (int x = -2'000; x <= 2'000; x += 50)
      for (int y = -2'000; y <= 2'000; y += 50)
        for (const int length : {0, 1, 20, 500, 3'000})
          EXPECT_TRUE(isInView(shown({x, y, length, length}, side))) << x << ' ' << y << ' ' << length;
}

TEST(PopupPlace, OneThatIsLargerThanTheViewBeginsAtItsTop) {
  for (const int y : {-100, 0, 300, 590, 700})
    EXPECT_LE(shown({300, y, 200, 20}, GTK_POS_TOP, {900, 700}).y, 1);
  for (const int y : {-100, 0, 300, 590, 700})
    EXPECT_GE(shown({300, y, 200, 20}, GTK_POS_TOP, {900, 700}).y, 0);
}

} // namespace
} // namespace quorvel
