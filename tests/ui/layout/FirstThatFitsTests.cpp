#include "layout/FirstThatFits.h"
#include "layout/stacks.h"
#include "support/RightToLeft.h"
#include "support/TestWindow.h"

#include <gmock/gmock.h>

namespace quorvel {
namespace {

using namespace quorvel::tests;
using Gtk::Orientation;

Gtk::Widget* block(int width, int height) {
  auto* result = Gtk::make_managed<Gtk::Box>();
  result->set_size_request(width, height);
  return result;
}

TEST(FirstThatFits, SwitchesExactlyWhereTheNaturalWidthStopsFitting) {
  auto* left = block(420, 50);
  auto* right = block(340, 70);
  auto* area = Gtk::make_managed<FirstThatFits>(std::vector<Arrangement>{
      {Orientation::HORIZONTAL, 18, {left, right}}, {Orientation::VERTICAL, 18, {left, right}}});
  TestWindow window(*area, 778);
  EXPECT_EQ(boundsIn(*area, *right).get_x(), 438);
  EXPECT_EQ(area->get_height(), 70);
  window.resize(777);
  EXPECT_EQ(boundsIn(*area, *right).get_x(), 0);
  EXPECT_EQ(boundsIn(*area, *right).get_y(), 68);
}

TEST(FirstThatFits, HidesWhatTheShownFormLeavesOut) {
  auto* text = block(100, 10);
  auto* large = block(104, 104);
  auto* small = block(74, 74);
  auto* hero = Gtk::make_managed<FirstThatFits>(std::vector<Arrangement>{
      {Orientation::HORIZONTAL, 28, {text, large}}, {Orientation::HORIZONTAL, 8, {text, small}}});
  TestWindow window(*hero, 300);
  EXPECT_TRUE(large->get_mapped());
  EXPECT_FALSE(small->get_mapped());
  window.resize(200);
  EXPECT_FALSE(large->get_mapped());
  EXPECT_TRUE(small->get_mapped());
}

TEST(FirstThatFits, ExpandingMembersShareWhatIsLeft) {
  auto* left = stretched(block(100, 10));
  auto* right = stretched(block(100, 10));
  auto* area = Gtk::make_managed<FirstThatFits>(
      std::vector<Arrangement>{{Orientation::HORIZONTAL, 20, {left, right}}});
  TestWindow window(*area, 320);
  EXPECT_EQ(left->get_width(), 150);
  EXPECT_EQ(boundsIn(*area, *right).get_x(), 170);
}

TEST(FirstThatFits, ARowBeginsWhereLinesOfTextDo) {
  const RightToLeft desktop;
  auto* first = block(100, 10);
  auto* second = stretched(block(50, 10));
  auto* area = Gtk::make_managed<FirstThatFits>(
      std::vector<Arrangement>{{Orientation::HORIZONTAL, 20, {first, second}}});
  TestWindow stage(*area, 320);
  EXPECT_EQ(boundsIn(*area, *first).get_x(), 220);
  EXPECT_EQ(boundsIn(*area, *second).get_x(), 0);
  EXPECT_EQ(second->get_width(), 200);
}

TEST(FirstThatFits, AFormChangeKeepsTheFocus) {
  auto* entry = Gtk::make_managed<Gtk::Entry>();
  entry->set_size_request(300, -1);
  auto* other = block(300, 10);
  auto* area = Gtk::make_managed<FirstThatFits>(std::vector<Arrangement>{
      {Orientation::HORIZONTAL, 0, {entry, other}}, {Orientation::VERTICAL, 0, {entry, other}}});
  TestWindow window(*area, 700);
  entry->grab_focus();
  window.resize(400);
  ASSERT_NE(window.get_focus(), nullptr);
  EXPECT_TRUE(window.get_focus()->is_ancestor(*entry));
}

} // namespace
} // namespace quorvel
