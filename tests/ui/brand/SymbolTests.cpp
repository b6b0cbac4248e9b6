#include "brand/QuorvelBrand.h"
#include "brand/StyleSheet.h"
#include "brand/symbol.h"
#include "layout/stacks.h"
#include "support/TestWindow.h"

#include <array>
#include <gmock/gmock.h>
#include <gtkmm/icontheme.h>

namespace quorvel {
namespace {

using tests::boundsIn;
using tests::IsColor;
using tests::TestWindow;

constexpr std::array names{"arrow.clockwise",
                           "arrow.up",
                           "arrow.up.forward.app",
                           "arrow.up.right",
                           "banknote.fill",
                           "bubble.left.and.bubble.right.fill",
                           "calendar",
                           "chart.bar",
                           "checkmark.circle.fill",
                           "checkmark.seal",
                           "checkmark.seal.fill",
                           "chevron.left",
                           "chevron.right",
                           "creditcard.fill",
                           "doc.text.fill",
                           "envelope.fill",
                           "folder.fill",
                           "lock.fill",
                           "lock.open.fill",
                           "lock.shield",
                           "lock.shield.fill",
                           "megaphone.fill",
                           "message.fill",
                           "person.2.wave.2",
                           "phone.fill",
                           "plus",
                           "plus.message.fill",
                           "point.3.connected.trianglepath.dotted",
                           "questionmark.circle.fill",
                           "rectangle.3.group",
                           "safari",
                           "safari.fill",
                           "shippingbox.fill",
                           "tray.and.arrow.down"};

/// The name by which the icon theme knows a drawing.
std::string themeName(const std::string& symbol, int weight) {
  return symbol + (weight == 400 ? "" : "." + std::to_string(weight)) + "-symbolic";
}

/// One symbol in green on the window's background, six pixels for each unit of its grid.
class Drawing {
 public:
  static constexpr int unit = 6, side = 16 * unit;

  explicit Drawing(const char* name, FontWeight weight = FontWeight::regular) {
    auto* image = symbol(name, {.weight = weight, .color = TextColor::green});
    image->set_pixel_size(side);
    TestWindow window(*image, side, side);
    picture_ = window.picture();
    left_ = boundsIn(window, *image).get_x();
    top_ = boundsIn(window, *image).get_y();
    stride_ = static_cast<int>(picture_.size()) / window.get_height();
  }

  Color at(int x, int y) const {
    const auto* bgra = &picture_[static_cast<std::size_t>((top_ + y) * stride_ + (left_ + x) * 4)];
    return {bgra[2] / 255.0, bgra[1] / 255.0, bgra[0] / 255.0};
  }
  /// How much of a pixel the symbol covers, judged by the one component in which green stands out.
  double coverage(int x, int y) const {
    return (at(x, y).green - QuorvelBrand::background.green) /
           (QuorvelBrand::green.green - QuorvelBrand::background.green);
  }

 private:
  std::vector<unsigned char> picture_;
  int left_, top_, stride_;
};

/// The sum of `value(x, y)` over the drawing, in square units of its grid.
template <class Value>
double area(const Value& value) {
  double sum = 0;
  for (int y = 0; y < Drawing::side; ++y)
    for (int x = 0; x < Drawing::side; ++x)
      sum += value(x, y);
  return sum / (Drawing::unit * Drawing::unit);
}

Color tinted(double coverage) {
  const auto mix = [&](double under, double over) { return under + coverage * (over - under); };
  constexpr auto under = QuorvelBrand::background, over = QuorvelBrand::green;
  return {mix(under.red, over.red), mix(under.green, over.green), mix(under.blue, over.blue)};
}

class EverySymbol : public ::testing::TestWithParam<const char*> {};

TEST_P(EverySymbol, IsTheProjectsOwnDrawingInEveryWeight) {
  const auto theme = Gtk::IconTheme::get_for_display(Gdk::Display::get_default());
  for (const auto& weight : EnumerationTable<FontWeight>::rows) {
    const auto name = themeName(GetParam(), weight.weight);
    EXPECT_EQ(theme->lookup_icon(name, 16)->get_file()->get_uri(),
              "resource:///com/quorvel/Desktop/icons/scalable/actions/" + name + ".svg");
  }
}

TEST_P(EverySymbol, IsDrawnInTheColourOfTheTextAndInNoOther) {
  const Drawing drawing(GetParam());
  double most = 0;
  for (int y = 0; y < Drawing::side; ++y)
    for (int x = 0; x < Drawing::side; ++x) {
      const auto covered = drawing.coverage(x, y);
      ASSERT_THAT(drawing.at(x, y), IsColor(tinted(covered))) << "at " << x << ", " << y;
      most = std::max(most, covered);
    }
  EXPECT_NEAR(most, 1, 0.01);
}

TEST_P(EverySymbol, KeepsAMarginOfOneAndAHalfUnits) {
  constexpr int margin = Drawing::unit * 3 / 2 - 1; // its edge may touch one more row of pixels
  const Drawing drawing(GetParam());
  for (int y = 0; y < Drawing::side; ++y)
    for (int x = 0; x < Drawing::side; ++x) {
      const bool isInMargin = std::min({x, y, Drawing::side - 1 - x, Drawing::side - 1 - y}) < margin;
      ASSERT_TRUE(!isInMargin || drawing.coverage(x, y) < 0.01) << "at " << x << ", " << y;
    }
}

TEST_P(EverySymbol, IsDrawnHeavierInEachHeavierWeight) {
  const bool isOutlined = !std::string_view(GetParam()).ends_with(".fill");
  Drawing lighter(GetParam());
  for (const auto weight : {FontWeight::medium, FontWeight::semibold, FontWeight::bold, FontWeight::black}) {
    const Drawing heavier(GetParam(), weight);
    const auto grown = [&](int x, int y) { return heavier.coverage(x, y) - lighter.coverage(x, y); };
    // What is filled grows outwards while the lines cut out of it grow too.
    const double change =
        isOutlined ? area(grown) : area([&](int x, int y) { return std::abs(grown(x, y)); });
    EXPECT_GT(change, 1) << rawValue(weight);
    lighter = heavier;
  }
}

/// Whether the symbol covers a whole square of two units somewhere, as the inside of a filled shape would.
bool hasFilledPlace(const Drawing& drawing) {
  constexpr int extent = 2 * Drawing::unit;
  const auto isCovered = [&](int left, int top) {
    for (int y = top; y < top + extent; ++y)
      for (int x = left; x < left + extent; ++x)
        if (drawing.coverage(x, y) < 0.5)
          return false;
    return true;
  };
  for (int y = 0; y + extent <= Drawing::side; ++y)
    for (int x = 0; x + extent <= Drawing::side; ++x)
      if (isCovered(x, y))
        return true;
  return false;
}

TEST(Symbol, ThatHasShapesButIsNotFilledIsDrawnInOutlines) {
  for (const auto* name : {"calendar", "chart.bar", "person.2.wave.2",
                           "point.3.connected.trianglepath.dotted", "rectangle.3.group"})
    for (const auto weight : {FontWeight::regular, FontWeight::semibold})
      EXPECT_FALSE(hasFilledPlace(Drawing(name, weight))) << name;
  EXPECT_TRUE(hasFilledPlace(Drawing("lock.fill")));
}

TEST(Symbol, HasTheWeightOfItsTextAndKeepsItAsItChanges) {
  auto* image = symbol("lock.fill", {TextStyle::body, FontWeight::bold});
  const TestWindow window(*image, 20);
  EXPECT_EQ(image->get_icon_name().raw(), themeName("lock.fill", 700));
  setSymbol(*image, "lock.open.fill");
  EXPECT_EQ(image->get_icon_name().raw(), themeName("lock.open.fill", 700));
}

TEST(Symbol, WithoutAWeightHasThatOfItsStyle) {
  auto* heading = symbol("plus", {TextStyle::headline});
  auto* body = symbol("plus", {TextStyle::body});
  const TestWindow window(*hstack(0, {heading, body}), 40);
  EXPECT_EQ(heading->get_icon_name().raw(), themeName("plus", 700));
  EXPECT_EQ(body->get_icon_name().raw(), themeName("plus", 400));
}

TEST(Symbol, HasAFolderThatIsNamedOnceHoweverOftenTheyAreInstalled) {
  installSymbols();
  const auto folders = Gtk::IconTheme::get_for_display(Gdk::Display::get_default())->get_resource_path();
  EXPECT_EQ(std::ranges::count(folders, "/com/quorvel/Desktop/icons"), 1);
}

INSTANTIATE_TEST_SUITE_P(Symbols, EverySymbol, ::testing::ValuesIn(names), [](const auto& symbol) {
  std::string name = symbol.param;
  std::ranges::replace(name, '.', '_');
  return name;
});

} // namespace
} // namespace quorvel
