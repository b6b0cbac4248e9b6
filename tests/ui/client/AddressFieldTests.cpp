#include "client/AddressField.h"

#include "layout/Container.h"
#include "support/RightToLeft.h"
#include "support/TestWindow.h"

namespace quorvel {
namespace {

using ::testing::ElementsAre;
using tests::boundsIn;
using tests::TestWindow;

const std::string longRest = "/agent.html?" + std::string(400, 'x') + "end";

struct AddressFieldTest : ::testing::Test {
  AddressField& field = *Gtk::make_managed<AddressField>();
  TestWindow screen{field, 500};

  void show(const std::string& address) {
    field.show(address);
    tests::drawFrame(field);
  }
  /// Scheme and host; what follows them.
  Gtk::Label& origin() { return *tests::all<Gtk::Label>(field).at(0); }
  Gtk::Label& rest() { return *tests::all<Gtk::Label>(field).at(1); }
  Gtk::Widget& line() { return *origin().get_parent(); }
  static bool isShortened(Gtk::Label& label) { return label.get_layout()->is_ellipsized(); }
};

TEST_F(AddressFieldTest, AnAddressThatFitsIsShownWholeAndWithoutAGap) {
  show("https://one.example/a?b#c");
  EXPECT_THAT(tests::texts(field), ElementsAre("https://one.example", "/a?b#c"));
  EXPECT_FALSE(isShortened(origin()));
  EXPECT_FALSE(isShortened(rest()));
  const auto first = boundsIn(field, origin());
  EXPECT_EQ(boundsIn(field, rest()).get_x(), first.get_x() + first.get_width());
  EXPECT_EQ(first.get_x(), boundsIn(field, line()).get_x());
}

TEST_F(AddressFieldTest, TheHostStaysWholeAtEveryWidthThatHoldsIt) {
  show("https://a-rather-long-name.one.example" + longRest);
  for (const int width : {320, 400, 500, 900, 1500}) {
    screen.resize(width);
    tests::drawFrame(field);
    EXPECT_FALSE(isShortened(origin())) << width;
    EXPECT_TRUE(isShortened(rest())) << width;
    EXPECT_EQ(rest().get_ellipsize(), Pango::EllipsizeMode::MIDDLE);
    EXPECT_EQ(rest().get_layout()->get_line_count(), 1);
    const auto place = boundsIn(field, rest());
    EXPECT_EQ(place.get_x() + place.get_width(), width - 12) << "up to the field's padding";
  }
}

TEST_F(AddressFieldTest, OfAHostWiderThanTheFieldTheEndIsSeen) {
  show("https://app.quorvel.example." + std::string(150, 'x') + ".one.example" + longRest);
  EXPECT_TRUE(isShortened(origin()));
  EXPECT_EQ(origin().get_ellipsize(), Pango::EllipsizeMode::START);
  EXPECT_GT(boundsIn(field, rest()).get_width(), 0);
}

TEST_F(AddressFieldTest, AddressesReadFromTheLeftInEveryLanguage) {
  const tests::RightToLeft desktop;
  show("https://one.example/1/2/3");
  EXPECT_LT(boundsIn(field, origin()).get_x(), boundsIn(field, rest()).get_x());
  EXPECT_EQ(rest().get_direction(), Gtk::TextDirection::LTR);
}

TEST_F(AddressFieldTest, WhereLinesBeginOnTheRightTheAddressStandsByTheLockThere) {
  const tests::RightToLeft desktop;
  show("https://one.example/1/2/3");
  const auto lock = boundsIn(field, *tests::all<Gtk::Image>(field).front());
  const auto end = boundsIn(field, rest());
  EXPECT_EQ(lock.get_x() + lock.get_width(), 500 - 12);
  EXPECT_EQ(end.get_x() + end.get_width(), lock.get_x() - 8);
  EXPECT_EQ(end.get_width(), widthRequest(rest()).natural);
  show("https://one.example" + longRest);
  EXPECT_EQ(boundsIn(field, origin()).get_x(), 12);
}

TEST_F(AddressFieldTest, ToAssistiveTechnologyTheAddressIsOneLabel) {
  show("https://user@one.example/a?b#c");
  EXPECT_EQ(line().get_accessible_role(), Gtk::Accessible::Role::LABEL);
  EXPECT_TRUE(tests::hasAccessibleName(line(), "https://one.example/a?b#c"));
  for (const auto* part : {&origin(), &rest()})
    EXPECT_EQ(part->get_accessible_role(), Gtk::Accessible::Role::NONE) << "which no toolkit tells of";
}

TEST_F(AddressFieldTest, AnotherAddressDoesNotChangeWhatTheFieldAsksFor) {
  int least = 0, other = 0, ignored = 0;
  line().measure(Gtk::Orientation::HORIZONTAL, -1, least, ignored, ignored, ignored);
  show("https://" + std::string(150, 'x') + ".one.example" + longRest);
  line().measure(Gtk::Orientation::HORIZONTAL, -1, other, ignored, ignored, ignored);
  EXPECT_LT(std::max(least, other), 100) << "the window is as narrow as it wants to be";
}

} // namespace
} // namespace quorvel
