#include "support/TestWindow.h"
#include "ui/client/ModelTest.h"

namespace quorvel {
namespace {

using tests::eventually;
using tests::IsColor;

/// What is behind a page.
class PageGroundTest : public ModelTest {
 protected:
  Color ground() {
    GdkRGBA color;
    webkit_web_view_get_background_color(webView(), &color);
    return {color.red, color.green, color.blue};
  }
  /// Whether it is so, and stays so when the page has told whatever it has to tell.
  void expectGround(const Color& color) {
    EXPECT_TRUE(eventually([&] { return ground(); }, IsColor(color)));
    settle();
    EXPECT_THAT(ground(), IsColor(color));
  }
};

TEST_F(PageGroundTest, IsBlackBeforeThereIsAPage) {
  EXPECT_THAT(ground(), IsColor(Color::black()));
}

TEST_F(PageGroundTest, IsWhiteForAPageThatCountsOnIt) {
  show("/pricing.html");
  expectGround(Color::white());
}

TEST_F(PageGroundTest, IsBlackAgainUntilAnotherPageDrawsItself) {
  server.page("/dark.html", "<body style='background: #123; color: white'>Dark");
  show("/pricing.html");
  expectGround(Color::white());
  show("/dark.html");
  expectGround(Color::black());
  model->goBack();
  waitForAddress("/pricing.html");
  expectGround(Color::white());
}

TEST_F(PageGroundTest, StaysBlackBehindLightLetters) {
  server.page("/light.html", "<body style='color: #eee'>Light");
  show("/light.html");
  expectGround(Color::black());
}

TEST_F(PageGroundTest, IsWhiteBehindTheEnginesOwnWordsOfAFailure) {
  model->load("http://127.0.0.1:1/");
  expectGround(Color::white());
}

} // namespace
} // namespace quorvel
