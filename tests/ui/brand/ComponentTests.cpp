#include "brand/BrandMark.h"
#include "brand/MetricTile.h"
#include "brand/QuorvelBrand.h"
#include "brand/SectionHeader.h"
#include "brand/StatusPill.h"
#include "brand/buttons.h"
#include "brand/sidebar.h"
#include "brand/text.h"
#include "brand/tone.h"
#include "support/Looks.h"
#include "support/RealInput.h"
#include "support/TestWindow.h"
#include "support/TurkishLanguage.h"

#include <cmath>
#include <gmock/gmock.h>

namespace quorvel {
namespace {

using namespace quorvel::tests;
using ::testing::DoubleNear;
using ::testing::ElementsAre;

TEST(BrandMark, AtItsDefaultSizeHasTheMeasuresOfTheDrawing) {
  const BrandMark::Geometry mark(36);
  EXPECT_THAT(mark.cornerRadius, DoubleNear(8.64, 1e-9));
  EXPECT_THAT(mark.letterSize, DoubleNear(20.16, 1e-9));
  EXPECT_THAT(mark.letterOffsetY, DoubleNear(1.08, 1e-9));
  EXPECT_THAT(mark.barWidth, DoubleNear(18, 1e-9));
  EXPECT_THAT(mark.barHeight, DoubleNear(3, 1e-9)) << "2.7 is raised to the minimum";
  EXPECT_THAT(mark.barOffsetX, DoubleNear(4.32, 1e-9));
  EXPECT_THAT(mark.barOffsetY, DoubleNear(4.68, 1e-9));
  EXPECT_THAT(mark.shadowRadius, DoubleNear(8.64, 1e-9));
  EXPECT_THAT(mark.shadowOffsetY, DoubleNear(3.6, 1e-9));
}

TEST(BrandMark, TheBarOfASmallMarkIsThreePointsHighAndOfALargeOneGrows) {
  EXPECT_THAT(BrandMark::Geometry(20).barHeight, DoubleNear(3, 1e-9));
  EXPECT_THAT(BrandMark::Geometry(60).barHeight, DoubleNear(4.5, 1e-9));
}

TEST(BrandMark, IsASquareLightTileOfExactlyItsSize) {
  auto* mark = Gtk::make_managed<BrandMark>(104);
  auto* row = hstack(0, {mark, hspacer()});
  TestWindow window(*row, 300);
  EXPECT_EQ(mark->get_width(), 104);
  EXPECT_EQ(mark->get_height(), 104);
  EXPECT_THAT(window.pixel(52, 8), IsColor(QuorvelBrand::control));
}

/// A mark of a hundred points on screen: every fraction of its size is a hundredth of a point.
struct DrawnMark {
  Color pixel(double x, double y) { return window.pixel(static_cast<int>(x), static_cast<int>(y)); }
  /// A place on the bar: so far along it from its middle, and so far below.
  Color bar(double along, double below) {
    const double angle = -14 * G_PI / 180;
    return pixel(62 + along * std::cos(angle) - below * std::sin(angle),
                 63 + along * std::sin(angle) + below * std::cos(angle));
  }

  BrandMark& mark = *Gtk::make_managed<BrandMark>(100);
  TestWindow window{*hstack(0, {&mark, hspacer()}), 300};
};

MATCHER_P(IsNearly, expected, "") {
  *result_listener << "(" << arg.red << ", " << arg.green << ", " << arg.blue << ")";
  const auto same = [](double a, double b) { return std::abs(a - b) < 0.05; };
  return same(arg.red, expected.red) && same(arg.green, expected.green) && same(arg.blue, expected.blue);
}

TEST(BrandMark, ItsBarRunsFromBlackThroughBlueToGreenAndRisesToTheRight) {
  DrawnMark drawn;
  const Color tile{0.960, 0.960, 0.955};
  EXPECT_THAT(drawn.bar(0, 0), IsNearly(Color{0.287, 0.604, 1.000}));
  EXPECT_THAT(drawn.bar(-20, 0), IsNearly(Color{0.2 * 0.287, 0.2 * 0.604, 0.2}));
  EXPECT_THAT(drawn.bar(20, 0), IsNearly(Color{0.280, 0.842, 0.702})) << "four fifths of the way to green";
  EXPECT_THAT(drawn.bar(20, -2.5), IsNearly(Color{0.280, 0.842, 0.702})) << "7.5 points thick";
  EXPECT_THAT(drawn.bar(20, 2.5), IsNearly(Color{0.280, 0.842, 0.702}));
  EXPECT_THAT(drawn.bar(20, -5.5), IsNearly(tile));
  EXPECT_THAT(drawn.bar(20, 5.5), IsNearly(tile));
  EXPECT_THAT(drawn.bar(23, 0), IsNearly(Color{0.279, 0.878, 0.657}));
  EXPECT_THAT(drawn.bar(26.5, 0), IsNearly(tile)) << "50 points long";
  EXPECT_THAT(drawn.bar(24.2, 3.3), IsNearly(tile)) << "with round ends";
}

/// How many pixels of a mark's bar lie above each other where it ends, right of the letter.
int drawnBarHeight(int size) {
  auto* mark = Gtk::make_managed<BrandMark>(size);
  TestWindow window(*hstack(0, {mark, hspacer()}), 300);
  const int x = size / 2 + static_cast<int>(0.32 * size);
  int height = 0;
  for (int y = size / 2; y < size; ++y) {
    const auto pixel = window.pixel(x, y);
    height += pixel.green - pixel.red > 0.25;
  }
  return height;
}

TEST(BrandMark, ItsBarIsDrawnThreePointsHighInASmallMarkAndHigherInALargeOne) {
  EXPECT_THAT(drawnBarHeight(20), ::testing::AllOf(::testing::Ge(2), ::testing::Le(4)));
  EXPECT_THAT(drawnBarHeight(60), ::testing::AllOf(::testing::Ge(4), ::testing::Le(6)));
}

TEST(BrandMark, ItsLetterIsABlackQALittleBelowTheMiddle) {
  DrawnMark drawn;
  const auto layout = drawn.mark.create_pango_layout("Q");
  layout->set_font_description(Pango::FontDescription("Inter 900 56px"));
  Pango::Rectangle ink, line;
  layout->get_pixel_extents(ink, line);
  const int left = (100 - line.get_width()) / 2 + ink.get_x();
  const int top = (100 - line.get_height()) / 2 + 3 + ink.get_y();
  const auto isBlack = [&](int x, int y) {
    return ::testing::Value(drawn.pixel(x, y), IsColor(Color::black()));
  };
  EXPECT_TRUE(isBlack(left + 4, top + ink.get_height() / 2 - 4)) << "its left side";
  EXPECT_FALSE(isBlack(left - 1, top + ink.get_height() / 2 - 4));
  EXPECT_TRUE(isBlack(left + ink.get_width() / 2, top + 4)) << "its top";
  EXPECT_FALSE(isBlack(left + ink.get_width() / 2, top - 1));
  EXPECT_FALSE(isBlack(left + ink.get_width() / 2, top + ink.get_height() / 2 - 6)) << "its inside";
}

TEST(BrandMark, ItsTileIsRoundedByAQuarterAndHasALightEdgeAndABlueShadow) {
  DrawnMark drawn;
  EXPECT_EQ(lookOf(drawn.mark),
            "\nshadow blue/0.16 0 10 24, ground control round 24, line white/0.16 round 24\n");
}

TEST(BrandMark, IsThirtySixPointsLargeUnlessToldOtherwise) {
  auto* mark = Gtk::make_managed<BrandMark>();
  TestWindow window(*hstack(0, {mark, hspacer()}), 300);
  EXPECT_EQ(mark->get_width(), 36);
}

/// A pill on screen, with the colours that it is drawn in.
struct DrawnPill {
  DrawnPill(AccentTone tone, PillStyle style)
      : pill(*Gtk::make_managed<StatusPill>("Live", tone, style)),
        window(*hstack(0, {&pill, hspacer()}), 200) {}
  Color fill() { return window.pixel(pill.get_width() / 2, 3); }
  Gdk::RGBA textColor() { return labelled(pill, "Live")->get_style_context()->get_color(); }

  StatusPill& pill;
  TestWindow window;
};

TEST(StatusPill, AProminentInkPillIsAWhiteCapsuleWithNearBlackText) {
  DrawnPill drawn(AccentTone::ink, PillStyle::prominent);
  EXPECT_THAT(drawn.fill(), IsColor(Color::white()));
  EXPECT_LT(drawn.textColor().get_red(), 0.02);
}

TEST(StatusPill, APlainInkPillIsAFaintWhiteTintWithWhiteText) {
  DrawnPill drawn(AccentTone::ink, PillStyle::plain);
  EXPECT_NEAR(drawn.fill().red, 0.147, 0.01) << "white at 0.14 over the background";
  EXPECT_EQ(drawn.textColor().get_red(), 1.0F);
}

TEST(StatusPill, PadsItsTitleByNineAndFivePoints) {
  auto* pill = Gtk::make_managed<StatusPill>("Connected", AccentTone::green);
  auto* row = hstack(0, {pill, hspacer()});
  TestWindow window(*row, 300);
  const auto title = boundsIn(*pill, *labelled(*pill, "Connected"));
  EXPECT_EQ(title.get_x(), 9);
  EXPECT_EQ(title.get_y(), 5);
  EXPECT_EQ(pill->get_width(), title.get_width() + 18);
  EXPECT_EQ(pill->get_height(), title.get_height() + 10);
}

TEST(StatusPill, ShowsAnotherStateInPlace) {
  StatusPill pill("Needs review", AccentTone::gold, PillStyle::prominent);
  pill.show("Approved", AccentTone::green);
  EXPECT_TRUE(pill.has_css_class("tone-green"));
  EXPECT_FALSE(pill.has_css_class("tone-gold"));
  EXPECT_FALSE(pill.has_css_class("pill-prominent"));
}

TEST(SectionHeader, ShowsItsEyebrowInUpperCase) {
  auto* header = Gtk::make_managed<SectionHeader>("Today at a glance", "Title", "Detail");
  TestWindow window(*header, 300);
  EXPECT_THAT(texts(*header), ElementsAre("TODAY AT A GLANCE", "Title", "Detail"));
}

TEST(SectionHeader, ItsEyebrowIsTheSameInEveryLanguage) {
  const TurkishLanguage language;
  ASSERT_EQ(Glib::ustring("Live").uppercase(), "LİVE") << "what the language would make of it";
  auto* header = Gtk::make_managed<SectionHeader>("Live requests", "Title", "Detail");
  TestWindow window(*header, 300);
  EXPECT_EQ(texts(*header).front(), "LIVE REQUESTS");
}

TEST(SectionHeader, ItsDetailWrapsAndIsNeverCut) {
  auto* header = Gtk::make_managed<SectionHeader>(
      "Eyebrow", "Title",
      "A detail that is much too long for the little width that this window leaves to it.");
  TestWindow window(*header, 200);
  auto* detail = all<Gtk::Label>(*header).back();
  EXPECT_GT(detail->get_layout()->get_line_count(), 1);
  EXPECT_FALSE(detail->get_layout()->is_ellipsized());
}

TEST(MetricTile, ShowsItsFourPartsAndANewValueInPlace) {
  auto* tile = Gtk::make_managed<MetricTile>("Active requests", "3", "Routed or drafting", AccentTone::blue);
  TestWindow window(*tile, 180);
  tile->setValue("4");
  EXPECT_THAT(texts(*tile), ElementsAre("Active requests", "4", "Routed or drafting"));
  EXPECT_EQ(boundsIn(*tile, *labelled(*tile, "4")).get_x(), 18);
  EXPECT_EQ(all<Gtk::Image>(*tile).front()->get_icon_name(), "arrow.up.right.700-symbolic") << "bold";
}

/// A button in a state, as it comes to rest.
struct ButtonLook {
  ButtonStyle style;
  Gtk::StateFlags state;
  std::string look;
};

TEST(Button, HasALookInEachOfItsStates) {
  using enum ButtonStyle;
  constexpr auto hover = Gtk::StateFlags::PRELIGHT, press = Gtk::StateFlags::ACTIVE;
  const std::string button = "\nbutton 28 high\ninset 12 0\n\"Pause\" 13 ";
  const std::vector<ButtonLook> looks{
      {bordered, {}, "\nground white/0.08 round 7, line white/0.115" + button + "500 white\n"},
      {bordered, hover, "\nground white/0.13 round 7, line white/0.115" + button + "500 white\n"},
      {bordered, press, "\nground white/0.18 round 7, line white/0.115" + button + "500 white\n"},
      {prominent, {}, "\nground control round 7" + button + "600 black\n"},
      {prominent, hover, "\nground white round 7" + button + "600 black\n"},
      {prominent, press, "\nground 0.823:0.823:0.805 round 7" + button + "600 black\n"},
      {link, {}, "\nbutton\n\"Pause\" 13 500 blue\n"},
      {plain, {}, "\nbutton\n\"Pause\" 14 400 white\n"},
      {plain, hover, "\nbutton\n\"Pause\" 14 400 white\n"},
  };
  for (const auto& [style, state, look] : looks) {
    auto* shown = quorvel::button("Pause", style, [] {});
    TestWindow window(*hstack(0, {shown, hspacer()}), 300);
    shown->set_state_flags(state, false);
    if (!comesToLook(*shown, look)) {
      EXPECT_EQ(lookOf(*shown), look);
    }
  }
}

TEST(Button, TakesTheDrawingsGroundUnderThePointerForANewChatToo) {
  auto* shown = newChatButton(FontWeight::black, [] {});
  TestWindow window(*shown, 300);
  const std::string button = "\nbutton\npadded 0 13\n\"+ New chat\" 14 900 black\n";
  EXPECT_EQ(lookOf(*shown), "\nground control round 10" + button);
  shown->set_state_flags(Gtk::StateFlags::PRELIGHT, false);
  EXPECT_TRUE(comesToLook(*shown, "\nground white round 10" + button)) << lookOf(*shown);
  shown->set_state_flags(Gtk::StateFlags::ACTIVE, true);
  EXPECT_TRUE(comesToLook(*shown, "\nground 0.823:0.823:0.805 round 10" + button)) << lookOf(*shown);
}

TEST(Tone, ATextTakesTheToneOfItselfAndOfAContainer) {
  constexpr TextLook look{.color = TextColor::tone};
  auto* itself = toned(AccentTone::gold, text("Needs review", look));
  auto* inside = text("Approved", look);
  auto* both = vstack(0, {itself, toned(AccentTone::green, hstack(0, {inside}))});
  TestWindow window(*both, 300);
  EXPECT_THAT(inkOf(*itself), IsColor(QuorvelBrand::gold));
  EXPECT_THAT(inkOf(*inside), IsColor(QuorvelBrand::green));
}

TEST(ShortenedText, ShowsAllOfItOnHover) {
  const std::string title = "Book two consultation callbacks before the end of the week, in the morning";
  constexpr TextLook look{TextStyle::callout};
  for (auto* label : {singleLine(title, look), text(title, look, 2)}) {
    TestWindow window(*label, 160);
    ASSERT_TRUE(label->get_layout()->is_ellipsized());
    EXPECT_EQ(tipOf(*label), title);
  }
}

TEST(ShortenedText, HasNothingMoreToShowWhereItsRoomIsWideEnough) {
  auto* label = singleLine("Book two callbacks", {TextStyle::callout});
  TestWindow window(*label, 60);
  const auto hasTooltip = [&] {
    g_autoptr(GtkTooltip) tooltip = GTK_TOOLTIP(g_object_new(GTK_TYPE_TOOLTIP, nullptr));
    gboolean isShown = FALSE;
    g_signal_emit_by_name(label->gobj(), "query-tooltip", 1, 1, FALSE, tooltip, &isShown);
    return isShown == TRUE;
  };
  EXPECT_TRUE(hasTooltip());
  window.resize(400);
  EXPECT_FALSE(hasTooltip());
}

TEST(Typography, TextGrowsWithTheTextSizeOfTheDesktop) {
  auto* label = text("Connectors", {TextStyle::body});
  auto* row = hstack(0, {label, hspacer()});
  TestWindow window(*row, 400);
  const int before = label->get_width();
  auto settings = Gtk::Settings::get_default();
  const int dpi = settings->property_gtk_xft_dpi();
  settings->property_gtk_xft_dpi() = 96 * 1024 * 3 / 2;
  drawFrame(*row);
  EXPECT_NEAR(label->get_width(), before * 1.5, before * 0.1);
  settings->property_gtk_xft_dpi() = dpi;
}

TEST(ButtonTest, WithoutAnActionAPressDoesNothing) {
  auto* idle = button("Idle", ButtonStyle::bordered, {});
  const TestWindow window(*idle);
  click(*idle);
  EXPECT_TRUE(idle->get_mapped());
}

} // namespace
} // namespace quorvel
