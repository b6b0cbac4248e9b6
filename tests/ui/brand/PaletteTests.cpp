#include "brand/QuorvelBrand.h"
#include "brand/surfaces.h"
#include "brand/tone.h"
#include "layout/stacks.h"
#include "support/TestWindow.h"

#include <gmock/gmock.h>

namespace quorvel {
namespace {

using namespace quorvel::tests;

TEST(Palette, InkIsWhiteAndItsTintIsWhiteAtAFaintOpacity) {
  EXPECT_EQ(color(AccentTone::ink), (Color{1, 1, 1, 1}));
  EXPECT_EQ(softColor(AccentTone::ink), (Color{1, 1, 1, 0.14}));
}

TEST(Palette, FiveTonesTakeAPaletteColourAndTwoHaveTheirOwn) {
  EXPECT_EQ(color(AccentTone::green), QuorvelBrand::green);
  EXPECT_EQ(color(AccentTone::blue), QuorvelBrand::blue);
  EXPECT_EQ(color(AccentTone::clay), QuorvelBrand::clay);
  EXPECT_EQ(color(AccentTone::gold), QuorvelBrand::gold);
  EXPECT_EQ(color(AccentTone::mint), (Color{0.45, 0.74, 0.60}));
  EXPECT_EQ(color(AccentTone::slate), (Color{0.35, 0.40, 0.46}));
}

TEST(Palette, EveryTokenHasItsValue) {
  EXPECT_EQ(QuorvelBrand::background, (Color{0.008, 0.009, 0.010}));
  EXPECT_EQ(QuorvelBrand::paper, (Color{0.020, 0.021, 0.022}));
  EXPECT_EQ(QuorvelBrand::panel, (Color{0.055, 0.056, 0.058}));
  EXPECT_EQ(QuorvelBrand::panelRaised, (Color{0.086, 0.087, 0.090}));
  EXPECT_EQ(QuorvelBrand::control, (Color{0.960, 0.960, 0.955}));
  EXPECT_EQ(QuorvelBrand::secondaryInk, (Color{0.720, 0.720, 0.735}));
  EXPECT_EQ(QuorvelBrand::muted, (Color{0.455, 0.460, 0.485}));
  EXPECT_EQ(QuorvelBrand::green, (Color{0.278, 0.902, 0.627}));
  EXPECT_EQ(QuorvelBrand::blue, (Color{0.287, 0.604, 1.000}));
  EXPECT_EQ(QuorvelBrand::clay, (Color{0.815, 0.514, 0.410}));
  EXPECT_EQ(QuorvelBrand::gold, (Color{0.902, 0.720, 0.282}));
  EXPECT_EQ(QuorvelBrand::line, (Color{1, 1, 1, 0.115}));
  EXPECT_EQ(QuorvelBrand::strongLine, (Color{1, 1, 1, 0.18}));
  EXPECT_EQ(QuorvelBrand::radius, 10.0);
  EXPECT_EQ(QuorvelBrand::windowGradient()[1], (Color{0.011, 0.014, 0.016}));
  EXPECT_EQ(QuorvelBrand::windowGradient()[2], (Color{0.018, 0.019, 0.020}));
}

Gtk::Widget* block() {
  auto* result = Gtk::make_managed<Gtk::Box>();
  result->set_size_request(100, 40);
  return result;
}

TEST(QuorvelCard, PadsByEighteenPointsUnlessToldOtherwise) {
  auto* content = block();
  auto* card = quorvelCard(content);
  auto* row = hstack(0, {card});
  TestWindow window(*row, 300);
  EXPECT_EQ(card->get_width(), 136);
  EXPECT_EQ(card->get_height(), 76);
  EXPECT_EQ(boundsIn(*card, *content).get_x(), 18);
}

TEST(QuorvelCard, WithoutPaddingTheFrameIsTightAroundTheContent) {
  auto* content = block();
  auto* card = quorvelCard(content, 0);
  auto* row = hstack(0, {card});
  TestWindow window(*row, 300);
  EXPECT_EQ(card->get_width(), 100);
  EXPECT_EQ(card->get_height(), 40);
}

TEST(QuorvelCard, ItsOutlineLiesOverTheEdgeOfItsContent) {
  auto* content = block();
  content->add_css_class("dot");
  setTone(*content, AccentTone::blue);
  auto* card = quorvelCard(content, 0);
  TestWindow window(*hstack(0, {card}), 300);
  const auto mixed = [](double under) { return under + (1 - under) * QuorvelBrand::line.alpha; };
  constexpr auto blue = QuorvelBrand::blue;
  const Color edge{mixed(blue.red), mixed(blue.green), mixed(blue.blue)};
  EXPECT_THAT(window.pixel(50, 20), IsColor(blue));
  EXPECT_THAT(window.pixel(50, 0), IsColor(edge));
  EXPECT_THAT(window.pixel(50, 39), IsColor(edge));
  EXPECT_THAT(window.pixel(50, 1), IsColor(blue)) << "one point wide";
}

TEST(QuorvelCard, IsFilledWithThePanelColour) {
  auto* card = quorvelCard(block());
  auto* row = hstack(0, {card});
  TestWindow window(*row, 300);
  EXPECT_THAT(window.pixel(60, 30), IsColor(QuorvelBrand::panel));
}

} // namespace
} // namespace quorvel
