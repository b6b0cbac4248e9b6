#include "layout/LazyRows.h"
#include "layout/stacks.h"
#include "support/RightToLeft.h"
#include "support/TestWindow.h"

#include <gmock/gmock.h>

namespace quorvel {
namespace {

using namespace quorvel::tests;
using ::testing::ElementsAre;

struct Record {
  std::string id;
  int height = 50;
  bool operator==(const Record&) const = default;
};

struct Row : Gtk::Box {
  explicit Row(const Record& record) {
    set_focusable(true);
    show(record);
  }
  void show(const Record& record) {
    id = record.id;
    set_size_request(40, record.height);
    ++timesShown;
  }
  std::string id;
  int timesShown = 0;
};

std::deque<Record> records(int count, int height = 50) {
  std::deque<Record> result;
  for (int i = 0; i < count; ++i)
    result.push_back({std::to_string(i), height});
  return result;
}

/// A long list below a head, scrolled in a window 400 points high.
struct LazyRowsTest : ::testing::Test {
  ~LazyRowsTest() override { window.reset(); }

  void show(std::deque<Record> all, LazyGrid::Form form = {.spacing = 10}) {
    list = std::move(all);
    column = Gtk::make_managed<LazyRows<Record, Row>>(
        list, form, [](const Record& record) { return Gtk::make_managed<Row>(record); });
    auto* head = Gtk::make_managed<Gtk::Box>();
    head->set_size_request(-1, 100);
    scroller.set_child(*padded(28, vstack(22, {head, column})));
    column->refresh();
    window = std::make_unique<TestWindow>(scroller, 500, 400);
    window->unset_focus();
    draw();
  }
  void refresh() {
    column->refresh();
    draw();
  }
  void draw() { drawFrame(scroller); }
  void scrollTo(double value) {
    scroller.get_vadjustment()->set_value(value);
    draw();
  }
  void scrollToEnd() { scrollTo(scroller.get_vadjustment()->get_upper()); }
  std::vector<Row*> rows() { return all<Row>(*column); }
  Row* row(const std::string& id) {
    for (auto* each : rows())
      if (each->id == id)
        return each;
    return nullptr;
  }
  /// Where a row is drawn in the window.
  Gdk::Rectangle place(const std::string& id) {
    auto* found = row(id);
    if (!found)
      throw std::runtime_error("there is no row of " + id);
    return boundsIn(scroller, *found);
  }
  /// From the column's top or the window's to its end or the window's, no more than the gap of 10 is empty.
  void expectSightIsFilled() {
    const auto whole = boundsIn(scroller, *column);
    int filledTo = std::max(0, whole.get_y());
    for (auto* each : rows()) {
      const auto bounds = boundsIn(scroller, *each);
      if (bounds.get_y() + bounds.get_height() < 0 || bounds.get_y() > scroller.get_height())
        continue;
      EXPECT_LE(bounds.get_y(), filledTo + 10) << "above " << each->id;
      filledTo = bounds.get_y() + bounds.get_height();
    }
    EXPECT_GE(filledTo + 10, std::min(scroller.get_height(), whole.get_y() + whole.get_height()));
  }

  std::deque<Record> list;
  Gtk::ScrolledWindow scroller;
  LazyRows<Record, Row>* column = nullptr;
  std::unique_ptr<TestWindow> window;
};

TEST_F(LazyRowsTest, TheRowsInSightAreThereInTheFirstFrame) {
  list = records(10'000);
  column =
      Gtk::make_managed<LazyRows<Record, Row>>(list, LazyGrid::Form{.spacing = 10}, [](const Record& record) {
        return Gtk::make_managed<Row>(record);
      });
  scroller.set_child(*column);
  column->refresh();
  window = std::make_unique<TestWindow>(scroller, 500, 400);
  expectSightIsFilled();
  EXPECT_LT(rows().size(), 40U);
}

TEST_F(LazyRowsTest, AsksForTheHeightOfTheWholeListAndBuildsOnlyWhatIsNearSight) {
  show(records(10'000));
  EXPECT_EQ(column->get_height(), 10'000 * (50 + 10) - 10);
  EXPECT_LT(rows().size(), 20U);
  expectSightIsFilled();
}

TEST_F(LazyRowsTest, RowsComeAndGoAsItIsScrolled) {
  show(records(10'000));
  for (const double value : {300.0, 333.0, 5'000.0, 250'000.0, 249'900.0, 0.0}) {
    scrollTo(value);
    expectSightIsFilled();
    EXPECT_LT(rows().size(), 20U) << value;
  }
  EXPECT_NE(row("0"), nullptr);
}

TEST_F(LazyRowsTest, TheEndShowsTheLastRecord) {
  show(records(10'000));
  scrollToEnd();
  ASSERT_NE(row("9999"), nullptr);
  const auto last = place("9999");
  EXPECT_EQ(last.get_y() + last.get_height(), 400 - 28);
  EXPECT_EQ(row("0"), nullptr);
}

TEST_F(LazyRowsTest, TheEndStaysInSightWhenItsRowsTurnOutHigherThanOthers) {
  auto uneven = records(1'000);
  for (std::size_t i = 900; i < 1'000; ++i)
    uneven[i].height = 170;
  show(uneven);
  scrollToEnd();
  const auto last = place("999");
  EXPECT_EQ(last.get_y() + last.get_height(), 400 - 28);
  expectSightIsFilled();
}

TEST_F(LazyRowsTest, RowsInSightStayWhereTheyAreWhenOnesAboveTurnOutHigher) {
  auto uneven = records(1'000);
  for (std::size_t i = 300; i < 500; ++i)
    uneven[i].height = 170;
  show(uneven);
  scrollTo(30'300);
  auto* anchor = rows().at(rows().size() / 2);
  const std::string id = anchor->id;
  const int y = place(id).get_y();
  scrollTo(scroller.get_vadjustment()->get_value() - 150);
  EXPECT_EQ(place(id).get_y(), y + 150) << "it moves by what was scrolled and no more";
  expectSightIsFilled();
}

TEST_F(LazyRowsTest, LowerRowsThanEstimatedLeaveNoHole) {
  auto uneven = records(1'000, 8);
  uneven.front().height = 300;
  show(uneven);
  expectSightIsFilled();
  scrollTo(4'000);
  expectSightIsFilled();
}

TEST_F(LazyRowsTest, AKeptIdKeepsItsWidgetAndAnEqualRecordIsNotShownAgain) {
  show(records(1'000));
  auto* second = row("1");
  list[1].height = 70;
  refresh();
  EXPECT_EQ(row("1"), second);
  EXPECT_EQ(second->timesShown, 2);
  EXPECT_EQ(row("2")->timesShown, 1);
  EXPECT_EQ(place("2").get_y(), place("1").get_y() + second->get_height() + 10);
}

TEST_F(LazyRowsTest, OneMoreInFrontCostsOneRowAndMovesTheOthersDown) {
  show(records(10'000));
  auto* first = row("0");
  const int y = place("0").get_y();
  list.push_front({"new"});
  refresh();
  EXPECT_EQ(place("new").get_y(), y);
  EXPECT_EQ(row("0"), first);
  EXPECT_EQ(first->timesShown, 1);
  EXPECT_EQ(place("0").get_y(), y + first->get_height() + 10);
  EXPECT_EQ(column->get_height(), 10'001 * (first->get_height() + 10) - 10);
}

TEST_F(LazyRowsTest, AListThatIsReplacedOrEmptiedIsFollowed) {
  show(records(1'000));
  scrollToEnd();
  list = {{"a"}, {"b"}};
  refresh();
  EXPECT_EQ(rows().size(), 2U);
  expectSightIsFilled();
  list.clear();
  refresh();
  EXPECT_TRUE(rows().empty());
  EXPECT_EQ(column->get_height(), 0);
}

TEST_F(LazyRowsTest, ARowWithTheFocusStaysHoweverFarItIsScrolledAway) {
  show(records(10'000));
  auto* focused = row("2");
  focused->grab_focus();
  scrollToEnd();
  EXPECT_EQ(window->get_focus(), focused);
  EXPECT_EQ(row("2"), focused);
  EXPECT_LT(rows().size(), 20U);
  list.push_front({"new"});
  refresh();
  EXPECT_EQ(window->get_focus(), focused);
  scrollTo(0);
  EXPECT_EQ(rows().front()->id, "new");
  EXPECT_EQ(rows().at(3), focused) << "and it is back in its place";
}

TEST_F(LazyRowsTest, FollowsAnotherWidthAndHeightOfItsWindow) {
  show(records(10'000));
  window->resize(300, 900);
  draw();
  EXPECT_EQ(row("0")->get_width(), 300 - 56);
  expectSightIsFilled();
}

/// In a window 500 points wide with margins of 28: three columns of 141 or 142, 10 points apart.
constexpr LazyGrid::Form threeColumns{.spacing = 10, .minimumColumnWidth = 130};

TEST_F(LazyRowsTest, AGridAsksForTheHeightOfAllItsLinesAndBuildsOnlyThoseNearSight) {
  show(records(10'000), threeColumns);
  EXPECT_EQ(column->get_height(), 3'334 * (50 + 10) - 10);
  EXPECT_LT(rows().size(), 60U);
  expectSightIsFilled();
}

TEST_F(LazyRowsTest, AGridSharesItsWidthAmongItsColumns) {
  show(records(5), threeColumns);
  EXPECT_EQ(place("0").get_x(), 28);
  EXPECT_EQ(place("2").get_x() + place("2").get_width(), 500 - 28);
  EXPECT_EQ(place("3").get_x(), 28) << "the next line";
  EXPECT_EQ(place("3").get_y(), place("0").get_y() + 60);
  EXPECT_EQ(place("4").get_width(), place("1").get_width()) << "a spare column stays empty";
}

TEST_F(LazyRowsTest, ACellOfAGridKeepsItsHeightInTheMiddleOfItsLine) {
  auto uneven = records(6);
  uneven[1].height = 90;
  show(uneven, threeColumns);
  EXPECT_EQ(place("0").get_height(), 50);
  EXPECT_EQ(place("0").get_y(), place("1").get_y() + 20);
  EXPECT_EQ(place("3").get_y(), place("1").get_y() + 100);
}

TEST_F(LazyRowsTest, TheLinesOfAGridComeAndGoAsItIsScrolled) {
  show(records(10'000), threeColumns);
  for (const double value : {300.0, 333.0, 5'000.0, 150'000.0, 149'900.0, 0.0}) {
    scrollTo(value);
    expectSightIsFilled();
    EXPECT_LT(rows().size(), 60U) << value;
  }
  scrollToEnd();
  EXPECT_EQ(place("9999").get_y() + place("9999").get_height(), 400 - 28);
}

TEST_F(LazyRowsTest, OneMoreInFrontMovesEveryCellOfAGridOn) {
  show(records(10'000), threeColumns);
  auto* first = row("0");
  const auto before = place("0");
  list.push_front({"new"});
  refresh();
  EXPECT_EQ(row("0"), first);
  EXPECT_EQ(place("new").get_x(), before.get_x());
  EXPECT_EQ(place("0").get_x(), place("1").get_x() - before.get_width() - 10);
  EXPECT_EQ(column->get_height(), 3'334 * (50 + 10) - 10);
  expectSightIsFilled();
}

TEST_F(LazyRowsTest, AGridTakesAnotherCountOfColumnsInAnotherWidth) {
  show(records(10'000), threeColumns);
  window->resize(360, 400);
  draw();
  EXPECT_EQ(place("2").get_x(), 28) << "two columns";
  EXPECT_EQ(column->get_height(), 5'000 * (50 + 10) - 10);
  expectSightIsFilled();
}

TEST_F(LazyRowsTest, InAGridTheLineWithTheFocusStaysHoweverFarItIsScrolledAway) {
  show(records(10'000), threeColumns);
  auto* focused = row("4");
  focused->grab_focus();
  scrollToEnd();
  EXPECT_EQ(window->get_focus(), focused);
  expectSightIsFilled();
  scrollTo(0);
  EXPECT_EQ(rows().at(4), focused) << "and it is back in its place";
}

TEST_F(LazyRowsTest, InAMirroredWindowTheFirstColumnIsOnTheRight) {
  const RightToLeft desktop;
  show(records(5), threeColumns);
  EXPECT_EQ(place("0").get_x() + place("0").get_width(), 500 - 28);
  EXPECT_EQ(place("2").get_x(), 28);
}

TEST(LazyRows, OutsideAViewportAllRowsExist) {
  std::deque<Record> list = records(60);
  LazyRows<Record, Row> column(list, LazyGrid::Form{.spacing = 10},
                               [](const Record& record) { return Gtk::make_managed<Row>(record); });
  column.refresh();
  TestWindow window(column, 300);
  drawFrame(column);
  EXPECT_EQ(all<Row>(column).size(), 60U);
}

} // namespace
} // namespace quorvel
