#include "layout/KeyedRows.h"
#include "layout/stacks.h"
#include "support/TestWindow.h"

#include <gmock/gmock.h>

namespace quorvel {
namespace {

using namespace quorvel::tests;
using ::testing::ElementsAre;

struct Record {
  std::string id;
  std::string title;
  bool operator==(const Record&) const = default;
};

struct Row : Gtk::Button {
  explicit Row(const Record& record) { show(record); }
  void show(const Record& record) {
    set_label(record.title);
    ++timesShown;
  }
  int timesShown = 0;
};

struct KeyedRowsTest : ::testing::Test {
  VStack container{0};
  KeyedRows<Record, Row> rows{container, [](const Record& record) { return Gtk::make_managed<Row>(record); }};

  void show(const std::vector<Record>& records) { rows.show(records); }
};

TEST_F(KeyedRowsTest, RowsFollowTheOrderOfTheRecords) {
  show({{"a", "A"}, {"b", "B"}});
  show({{"c", "C"}, {"b", "B"}, {"a", "A"}});
  std::vector<std::string> order;
  for (auto* row : all<Row>(container))
    order.push_back(row->get_label());
  EXPECT_THAT(order, ElementsAre("C", "B", "A"));
}

TEST_F(KeyedRowsTest, AKeptIdKeepsItsWidget) {
  show({{"a", "A"}, {"b", "B"}});
  auto* before = rows.row("b");
  show({{"b", "changed"}});
  EXPECT_EQ(rows.row("b"), before);
  EXPECT_EQ(before->get_label(), "changed");
}

TEST_F(KeyedRowsTest, AnEqualRecordIsNotShownAgain) {
  show({{"a", "A"}, {"b", "B"}});
  show({{"a", "A"}, {"b", "other"}});
  EXPECT_EQ(rows.row("a")->timesShown, 1);
  EXPECT_EQ(rows.row("b")->timesShown, 2);
}

TEST_F(KeyedRowsTest, AGoneRecordTakesItsRowAlong) {
  show({{"a", "A"}, {"b", "B"}});
  show({{"b", "B"}});
  EXPECT_EQ(rows.row("a"), nullptr);
  EXPECT_EQ(all<Row>(container).size(), 1U);
}

TEST_F(KeyedRowsTest, OfTwoRecordsWithOneIdTheFirstCounts) {
  show({{"a", "first"}, {"a", "second"}});
  EXPECT_EQ(all<Row>(container).size(), 1U);
  EXPECT_EQ(rows.row("a")->get_label(), "first");
}

TEST_F(KeyedRowsTest, TheFocusSurvivesInsertingRemovingAndMoving) {
  show({{"a", "A"}, {"b", "B"}, {"c", "C"}});
  TestWindow window(container, 200);
  rows.row("b")->grab_focus();
  show({{"n", "N"}, {"c", "C"}, {"b", "B"}});
  EXPECT_EQ(window.get_focus(), rows.row("b"));
}

} // namespace
} // namespace quorvel
