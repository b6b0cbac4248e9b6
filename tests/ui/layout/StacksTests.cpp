#include "layout/Frame.h"
#include "layout/stacks.h"
#include "support/TestWindow.h"

#include <gmock/gmock.h>

namespace quorvel {
namespace {

using namespace quorvel::tests;

Gtk::Widget* block(int width, int height) {
  auto* result = Gtk::make_managed<Gtk::Box>();
  result->set_size_request(width, height);
  return result;
}

TEST(Stacks, ASpacerTakesWhatItsNeighboursLeave) {
  auto* first = block(30, 10);
  auto* last = block(40, 10);
  auto* stack = hstack(12, {first, hspacer(), last});
  TestWindow window(*stack, 300);
  EXPECT_EQ(boundsIn(*stack, *first).get_x(), 0);
  EXPECT_EQ(boundsIn(*stack, *last).get_x(), 260);
}

TEST(Stacks, ASpacerKeepsItsMinimumWhereThereIsNoRoom) {
  auto* stack = hstack(10, {block(30, 10), hspacer(24), block(40, 10)});
  TestWindow window(*stack, 10);
  EXPECT_EQ(stack->get_width(), 30 + 10 + 24 + 10 + 40);
}

TEST(Stacks, AChildThatIsHiddenAtFirstIsAsWideAsIfItHadNeverBeen) {
  auto* wide = stretched(block(50, 10));
  wide->set_visible(false);
  auto* stack = vstack(8, {wide});
  TestWindow window(*stack, 200);
  wide->set_visible(true);
  drawFrame(*stack);
  EXPECT_EQ(boundsIn(*stack, *wide).get_width(), 200);
}

TEST(Stacks, ALeadingChildKeepsItsWidthAndAStretchedOneGetsItAll) {
  auto* narrow = block(50, 10);
  auto* wide = stretched(block(50, 10));
  auto* stack = vstack(8, {narrow, wide});
  TestWindow window(*stack, 200);
  EXPECT_EQ(boundsIn(*stack, *narrow).get_width(), 50);
  EXPECT_EQ(boundsIn(*stack, *wide).get_width(), 200);
  EXPECT_EQ(boundsIn(*stack, *wide).get_y(), 18);
}

TEST(Stacks, ChildrenOfARowStandAtItsAlignment) {
  auto* top = block(10, 10);
  auto* stack = hstack(0, {top, block(10, 50)}, VerticalAlignment::top);
  auto* low = block(10, 10);
  auto* lowered = hstack(0, {low, block(10, 50)}, VerticalAlignment::bottom);
  auto* both = vstack(0, {stack, lowered});
  TestWindow window(*both, 100);
  EXPECT_EQ(boundsIn(*stack, *top).get_y(), 0);
  EXPECT_EQ(boundsIn(*lowered, *low).get_y(), 40);
}

TEST(Stacks, ChildrenOfAColumnStandAtItsAlignment) {
  auto* last = block(10, 10);
  auto* centred = block(10, 10);
  auto* trailing = vstack(0, {last, block(50, 10)}, HorizontalAlignment::trailing);
  auto* centre = vstack(0, {centred, block(50, 10)}, HorizontalAlignment::centre);
  auto* both = vstack(0, {trailing, centre});
  TestWindow window(*both, 100);
  EXPECT_EQ(boundsIn(*trailing, *last).get_x(), 40);
  EXPECT_EQ(boundsIn(*centre, *centred).get_x(), 20);
  both->set_direction(Gtk::TextDirection::RTL);
  trailing->set_direction(Gtk::TextDirection::RTL);
  drawFrame(*both);
  EXPECT_EQ(boundsIn(*trailing, *last).get_x(), 0);
  EXPECT_EQ(boundsIn(*both, *trailing).get_x(), 50);
}

TEST(Stacks, AChildThatExpandsAcrossItsStackGetsAllOfIt) {
  auto* high = block(10, 10);
  high->set_vexpand(true);
  auto* row = hstack(0, {high, block(10, 50)});
  TestWindow window(*row, 100);
  EXPECT_EQ(high->get_height(), row->get_height());
  EXPECT_GE(row->get_height(), 50);
}

TEST(Stacks, WhatExpandsDownwardsSharesWhatItsColumnHasLeft) {
  auto* first = block(10, 10);
  auto* spacer = vspacer();
  auto* grown = block(10, 20);
  grown->set_vexpand(true);
  auto* column = vstack(10, {first, spacer, grown});
  column->set_size_request(-1, 258);
  auto* row = hstack(0, {column}, VerticalAlignment::top);
  TestWindow window(*row, 100);
  EXPECT_EQ(column->get_height(), 258);
  EXPECT_EQ(first->get_height(), 10);
  EXPECT_EQ(spacer->get_height(), 8 + 100);
  EXPECT_EQ(grown->get_height(), 20 + 100);
  EXPECT_EQ(boundsIn(*column, *grown).get_y(), 138);
}

TEST(Stacks, ARowOfEqualWidthsGivesEachChildTheSame) {
  auto* first = stretched(block(30, 10));
  auto* last = stretched(block(50, 10));
  auto* stack = hstack(10, {first, last});
  stack->setEqualWidths();
  TestWindow window(*stack, 211);
  EXPECT_EQ(first->get_width(), 100);
  EXPECT_EQ(last->get_width(), 101);
  EXPECT_EQ(boundsIn(*stack, *last).get_x(), 110);
  EXPECT_EQ(widthRequest(*first).natural, 30);
  window.resize(20);
  EXPECT_EQ(stack->get_width(), 110) << "none is narrower than the widest needs";
}

/// Higher the narrower it is, as a text that wraps; counts the widths that it was tried in.
class CountingText : public Container {
 public:
  mutable int tries = 0;

 protected:
  void measure_vfunc(Gtk::Orientation orientation, int forSize, int& minimum, int& natural,
                     int& minimumBaseline, int& naturalBaseline) const override {
    minimumBaseline = naturalBaseline = -1;
    ++tries;
    minimum = natural = orientation == Gtk::Orientation::HORIZONTAL ? 100 : 4000 / std::max(forSize, 100);
    if (orientation == Gtk::Orientation::HORIZONTAL)
      natural = 400;
  }
};

TEST(Stacks, ARowTriesATextInNoMoreWidthsThanItCanHave) {
  auto* text = Gtk::make_managed<CountingText>();
  auto* stack = hstack(10, {text, block(90, 10)});
  Gtk::Box owner;
  owner.append(*stack);
  EXPECT_EQ(heightRequest(*stack, 350).natural, 4000 / 250);
  EXPECT_LE(text->tries, 3);
}

TEST(Stacks, StacksInStacksGiveATextTheOneWidthItHas) {
  auto* text = Gtk::make_managed<CountingText>();
  auto* row = hstack(10, {vstack(8, {text, block(90, 10)}), block(90, 10)});
  auto* column = vstack(8, {row, hstack(8, {block(20, 20), vstack(0, {})})}, HorizontalAlignment::centre);
  TestWindow window(*column, 350);
  EXPECT_EQ(text->get_width(), 250);
  EXPECT_EQ(text->get_height(), 4000 / 250);
  EXPECT_LE(text->tries, 6);
}

TEST(Stacks, ARowIsMirroredWhereTheWritingIs) {
  auto* first = block(30, 10);
  auto* last = block(40, 10);
  auto* stack = hstack(12, {first, hspacer(), last});
  stack->set_direction(Gtk::TextDirection::RTL);
  TestWindow window(*stack, 300);
  EXPECT_EQ(boundsIn(*stack, *first).get_x(), 270);
  EXPECT_EQ(boundsIn(*stack, *last).get_x(), 0);
}

TEST(Stacks, AHiddenChildOfARowTakesNoRoom) {
  auto* hidden = block(50, 10);
  hidden->set_visible(false);
  auto* last = block(40, 10);
  auto* stack = hstack(12, {block(30, 10), hidden, last});
  TestWindow window(*stack, 300);
  EXPECT_EQ(boundsIn(*stack, *last).get_x(), 42);
}

TEST(Frame, KeepsItsWidthWhateverTheChildWouldLike) {
  auto* label =
      Gtk::make_managed<Gtk::Label>("A sentence that would rather be on one long line than on several.");
  label->set_wrap(true);
  auto* frame = Gtk::make_managed<Frame>(Frame::Size{.width = 120}, *label);
  auto* stack = hstack(0, {frame, hspacer()});
  TestWindow window(*stack, 600);
  EXPECT_EQ(frame->get_width(), 120);
  EXPECT_GT(frame->get_height(), 30) << "the text wraps inside the frame";
}

TEST(Frame, CentresASmallerChild) {
  auto* child = block(10, 10);
  auto* frame = framed({.width = 42, .height = 42}, child);
  auto* stack = hstack(0, {frame});
  TestWindow window(*stack, 100);
  EXPECT_EQ(frame->get_height(), 42);
  EXPECT_EQ(boundsIn(*frame, *child).get_x(), 16);
  EXPECT_EQ(boundsIn(*frame, *child).get_y(), 16);
}

Gtk::Label* sentence() {
  auto* label =
      Gtk::make_managed<Gtk::Label>("A sentence that would rather be on one long line than on several.");
  label->set_wrap(true);
  return label;
}

TEST(Frame, WithALeastWidthAsksForNoMoreHoweverLongItsTextIs) {
  auto* frame = Gtk::make_managed<Frame>(Frame::Size{.minimumWidth = 120}, *sentence());
  auto* stack = hstack(0, {frame, hspacer()});
  TestWindow window(*stack, 600);
  EXPECT_EQ(frame->get_width(), 120);
  EXPECT_EQ(heightRequest(*frame, -1).minimum, heightRequest(*frame, 120).minimum);
}

TEST(Frame, WithALeastWidthIsAsWideAsAChildThatCannotDoWithIt) {
  auto* frame = Gtk::make_managed<Frame>(Frame::Size{.minimumWidth = 120}, *block(200, 10));
  auto* stack = hstack(0, {frame, hspacer()});
  TestWindow window(*stack, 600);
  EXPECT_EQ(frame->get_width(), 200);
}

TEST(Frame, WithALeastWidthTakesMoreWhereItExpands) {
  auto* frame = stretched(Gtk::make_managed<Frame>(Frame::Size{.minimumWidth = 120}, *block(10, 10)));
  auto* stack = hstack(0, {frame});
  TestWindow window(*stack, 600);
  EXPECT_EQ(frame->get_width(), 600);
}

TEST(Frame, IsAsHighAsItsRowWhereItsChildExpandsDownwards) {
  auto* column = vstack(0, {block(10, 10), vspacer()});
  auto* frame = Gtk::make_managed<Frame>(Frame::Size{.width = 50}, *column);
  auto* stack = hstack(0, {frame, block(10, 80)});
  TestWindow window(*stack, 200);
  EXPECT_EQ(frame->get_height(), 80);
}

} // namespace
} // namespace quorvel
