#include "layout/RowHeights.h"

#include <gtest/gtest.h>

namespace quorvel {
namespace {

RowHeights heights(std::size_t count) {
  RowHeights result(100, 12);
  result.setCount(count);
  return result;
}

TEST(RowHeights, NoRowsTakeNoRoom) {
  EXPECT_EQ(heights(0).total(), 0);
}

TEST(RowHeights, RowsThatWereNeverSeenCountWithTheEstimate) {
  const auto rows = heights(10'000);
  EXPECT_EQ(rows.top(0), 0);
  EXPECT_EQ(rows.top(9'999), 9'999 * 112);
  EXPECT_EQ(rows.total(), 10'000 * 112 - 12);
}

TEST(RowHeights, TheFirstMeasuredRowIsTheEstimateForTheOthers) {
  auto rows = heights(3);
  rows.setHeight(1, 50);
  rows.setHeight(2, 80);
  EXPECT_EQ(rows.top(1), 62);
  EXPECT_EQ(rows.top(2), 124);
  EXPECT_EQ(rows.total(), 124 + 80);
}

TEST(RowHeights, AHeightStaysWithItsRowWhenOthersComeInAtTheFront) {
  auto rows = heights(3);
  rows.setHeight(0, 50);
  rows.setHeight(1, 90);
  rows.setCount(5);
  EXPECT_EQ(rows.top(4) - rows.top(3), 90 + 12) << "what was the second row is the fourth by now";
  EXPECT_EQ(rows.top(3), 3 * 62);
}

TEST(RowHeights, HeightsOfGoneRowsAreForgotten) {
  auto rows = heights(3);
  rows.setHeight(2, 50);
  rows.setHeight(0, 90);
  rows.setCount(2);
  rows.setCount(3);
  EXPECT_EQ(rows.total(), 3 * 50 + 2 * 12);
}

TEST(RowHeights, ARowMeasuredAgainHasItsNewHeight) {
  auto rows = heights(2);
  rows.setHeight(0, 50);
  rows.setHeight(1, 90);
  rows.setHeight(1, 50);
  EXPECT_EQ(rows.total(), 112);
}

TEST(RowHeights, FindsTheRowOfAPlaceToThePoint) {
  auto rows = heights(100);
  rows.setHeight(0, 50);
  rows.setHeight(2, 200);
  rows.setHeight(50, 10);
  for (std::size_t row = 0; row < 100; ++row) {
    EXPECT_EQ(rows.rowAt(rows.top(row)), row);
    EXPECT_EQ(rows.rowAt(rows.top(row + 1) - 1), row) << "the gap belongs to the row above it";
  }
}

TEST(RowHeights, PlacesOutsideBelongToTheFirstAndTheLastRow) {
  auto rows = heights(3);
  EXPECT_EQ(rows.rowAt(-500), 0U);
  EXPECT_EQ(rows.rowAt(10'000), 2U);
  rows.setHeight(2, 10);
  rows.setHeight(0, 40);
  EXPECT_EQ(rows.rowAt(10'000), 2U);
}

} // namespace
} // namespace quorvel
