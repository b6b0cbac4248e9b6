#include "brand/QuorvelBrand.h"
#include "brand/symbol.h"
#include "support/TestWindow.h"

#include <array>
#include <gmock/gmock.h>

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

std::string themeName(const char* name) {
  return std::string(name) + "-symbolic";
}

/// One symbol in green on the window's background, six pixels for each unit of its grid.
class EverySymbol : public ::testing::TestWithParam<const char*> {
 protected:
  static constexpr int unit = 6, side = 16 * unit;

  Color at(int x, int y) const {
    const auto* bgra = &picture_[static_cast<std::size_t>((top_ + y) * stride_ + (left_ + x) * 4)];
    return {bgra[2] / 255.0, bgra[1] / 255.0, bgra[0] / 255.0};
  }

  /// How much of a pixel the symbol covers, judged by the one component in which green stands out.
  static double coverage(const Color& pixel) {
    return (pixel.green - QuorvelBrand::background.green) /
           (QuorvelBrand::green.green - QuorvelBrand::background.green);
  }

  static Color tinted(double coverage) {
    const auto mix = [&](double under, double over) { return under + coverage * (over - under); };
    constexpr auto under = QuorvelBrand::background, over = QuorvelBrand::green;
    return {mix(under.red, over.red), mix(under.green, over.green), mix(under.blue, over.blue)};
  }

 private:
  static Gtk::Image* drawn(const char* name) {
    auto* image = symbol(name, {.color = TextColor::green});
    image->set_pixel_size(side);
    return image;
  }

  Gtk::Image* image_ = drawn(GetParam());
  TestWindow window_{*image_, side, side};
  std::vector<unsigned char> picture_ = window_.picture();
  int left_ = boundsIn(window_, *image_).get_x(), top_ = boundsIn(window_, *image_).get_y();
  int stride_ = static_cast<int>(picture_.size()) / window_.get_height();
};

TEST_P(EverySymbol, IsTheProjectsOwnDrawing) {
  const auto theme = Gtk::IconTheme::get_for_display(Gdk::Display::get_default());
  const auto drawing = theme->lookup_icon(themeName(GetParam()), 16);
  EXPECT_EQ(drawing->get_file()->get_uri(),
            "resource:///com/quorvel/Desktop/icons/scalable/actions/" + themeName(GetParam()) + ".svg");
}

TEST_P(EverySymbol, IsDrawnInTheColourOfTheTextAndInNoOther) {
  double most = 0;
  for (int y = 0; y < side; ++y)
    for (int x = 0; x < side; ++x) {
      const auto covered = coverage(at(x, y));
      ASSERT_THAT(at(x, y), IsColor(tinted(covered))) << "at " << x << ", " << y;
      most = std::max(most, covered);
    }
  EXPECT_NEAR(most, 1, 0.01);
}

TEST_P(EverySymbol, KeepsAMarginOfOneAndAHalfUnits) {
  constexpr int margin = unit * 3 / 2 - 1; // its edge may touch one more row of pixels
  for (int y = 0; y < side; ++y)
    for (int x = 0; x < side; ++x) {
      const bool isInMargin = std::min({x, y, side - 1 - x, side - 1 - y}) < margin;
      ASSERT_TRUE(!isInMargin || coverage(at(x, y)) < 0.01) << "at " << x << ", " << y;
    }
}

INSTANTIATE_TEST_SUITE_P(Symbols, EverySymbol, ::testing::ValuesIn(names), [](const auto& symbol) {
  std::string name = symbol.param;
  std::ranges::replace(name, '.', '_');
  return name;
});

} // namespace
} // namespace quorvel
