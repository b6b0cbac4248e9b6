#include "layout/AdaptiveGrid.h"
#include "support/RightToLeft.h"
#include "support/TestWindow.h"

#include <gmock/gmock.h>

namespace quorvel {
namespace {

using namespace quorvel::tests;

Gtk::Widget* cell(AdaptiveGrid& grid, int height = 20) {
  auto* result = Gtk::make_managed<Gtk::Box>();
  result->set_size_request(10, height);
  grid.append(*result);
  return result;
}

TEST(AdaptiveGrid, CountsItsColumnsFromTheWidthAlone) {
  AdaptiveGrid grid(260, 14);
  EXPECT_EQ(grid.columnCount(260), 1);
  EXPECT_EQ(grid.columnCount(533), 1);
  EXPECT_EQ(grid.columnCount(534), 2) << "260 + 14 + 260";
  EXPECT_EQ(grid.columnCount(807), 2);
  EXPECT_EQ(grid.columnCount(808), 3);
}

TEST(AdaptiveGrid, ShowsOneColumnHoweverNarrow) {
  AdaptiveGrid grid(260, 14);
  EXPECT_EQ(grid.columnCount(0), 1);
  EXPECT_EQ(grid.columnCount(100), 1);
}

TEST(AdaptiveGrid, SharesTheWidthEquallyAndLeavesSpareColumnsEmpty) {
  auto* grid = Gtk::make_managed<AdaptiveGrid>(100, 10);
  auto* first = cell(*grid);
  auto* second = cell(*grid);
  TestWindow window(*grid, 340);
  EXPECT_EQ(boundsIn(*grid, *first).get_width(), 106) << "three columns fit, two are filled";
  EXPECT_EQ(boundsIn(*grid, *second).get_x(), 116);
}

TEST(AdaptiveGrid, BeginsWhereLinesOfTextDo) {
  const RightToLeft desktop;
  auto* grid = Gtk::make_managed<AdaptiveGrid>(100, 10);
  auto* first = cell(*grid);
  auto* second = cell(*grid);
  auto* third = cell(*grid);
  TestWindow stage(*grid, 210);
  EXPECT_EQ(boundsIn(*grid, *first).get_x(), 110);
  EXPECT_EQ(boundsIn(*grid, *second).get_x(), 0);
  EXPECT_EQ(boundsIn(*grid, *third).get_x(), 110);
}

TEST(AdaptiveGrid, ItsLastColumnEndsWhereTheGridDoes) {
  auto* grid = Gtk::make_managed<AdaptiveGrid>(168, 14);
  Gtk::Widget* last = nullptr;
  for (int i = 0; i < 4; ++i)
    last = cell(*grid);
  TestWindow window(*grid, 852);
  const auto bounds = boundsIn(*grid, *last);
  EXPECT_EQ(bounds.get_x() + bounds.get_width(), 852);
}

TEST(AdaptiveGrid, ACellKeepsItsHeightInTheMiddleOfItsRow) {
  auto* grid = Gtk::make_managed<AdaptiveGrid>(100, 10);
  auto* low = cell(*grid, 20);
  auto* high = cell(*grid, 60);
  auto* next = cell(*grid, 20);
  TestWindow window(*grid, 210);
  EXPECT_EQ(boundsIn(*grid, *low).get_y(), 20);
  EXPECT_EQ(boundsIn(*grid, *low).get_height(), 20);
  EXPECT_EQ(boundsIn(*grid, *high).get_y(), 0);
  EXPECT_EQ(boundsIn(*grid, *next).get_y(), 70);
}

TEST(AdaptiveGrid, FollowsTheWidth) {
  auto* grid = Gtk::make_managed<AdaptiveGrid>(100, 10);
  cell(*grid);
  auto* second = cell(*grid);
  TestWindow window(*grid, 210);
  EXPECT_EQ(boundsIn(*grid, *second).get_y(), 0);
  window.resize(200);
  EXPECT_EQ(boundsIn(*grid, *second).get_y(), 30);
}

TEST(AdaptiveGrid, WhereACellNeedsMoreThanTheMinimumAllColumnsGrowAndNoneOverlaps) {
  auto* grid = Gtk::make_managed<AdaptiveGrid>(100, 10);
  auto* wide = cell(*grid);
  wide->set_size_request(130, 20);
  auto* second = cell(*grid);
  TestWindow window(*grid, 330);
  EXPECT_EQ(grid->columnCount(330), 2) << "three of 130 would need 410";
  EXPECT_EQ(boundsIn(*grid, *wide).get_width(), 160);
  EXPECT_EQ(boundsIn(*grid, *second).get_x(), 170);
}

} // namespace
} // namespace quorvel
