#include "support/RealInput.h"
#include "ui/client/ModelTest.h"

namespace quorvel {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;
using ::testing::StartsWith;

/// A page in a window, for real clicks. It reports each time it has tried something fifty times.
class PageFloodTest : public ModelTest {
 protected:
  void SetUp() override {
    auto& view = model->webView().widget();
    view.set_size_request(600, 400);
    window = std::make_unique<tests::TestWindow>(view, 600, 400);
    server.page("/tried", "");
  }
  void TearDown() override { window.reset(); }

  /// Shows a page with these elements that has `attempt` made with each click, and once by itself.
  void showPageThatTries(const std::string& attempt, const std::string& html = "") {
    server.page("/flood.html",
                "<title>Flood</title><body style='height: 380px'>" + html +
                    "<script>let n = 0; const tryAgain = () => { const timer = setInterval(() => { " +
                    attempt +
                    "; if (++n % 50 == 0) { clearInterval(timer); fetch('/tried') } }, 1) };"
                    "addEventListener('click', event => event.isTrusted && tryAgain());"
                    "addEventListener('load', tryAgain)</script>");
    show("/flood.html");
    waitForTry();
  }
  void waitForTry() {
    ++tries;
    ASSERT_TRUE(tests::eventually([&] { return server.count("/tried"); }, testing::Ge(tries)));
    settle();
  }
  void clickOnThePage() {
    tests::clickOn(model->webView().widget());
    waitForTry();
  }

  std::unique_ptr<tests::TestWindow> window;
  int tries = 0;
};

struct Launch {
  const char* name;
  const char* attempt;
  const char* html = "";
};

void PrintTo(const Launch& launch, std::ostream* out) {
  *out << launch.name;
}

class LaunchTest : public PageFloodTest, public ::testing::WithParamInterface<Launch> {};

TEST_P(LaunchTest, HappensOncePerDocumentAndOncePerClick) {
  server.redirect("/redirect", "mailto:a@b.example");
  server.redirect("/chain", "/redirect");
  showPageThatTries(GetParam().attempt, GetParam().html);
  EXPECT_THAT(opened, ElementsAre(StartsWith("mailto:a@b.example")));
  clickOnThePage();
  EXPECT_THAT(opened, SizeIs(2));
  clickOnThePage();
  EXPECT_THAT(opened, SizeIs(3));
  EXPECT_EQ(*model->currentURLString, server.address("/flood.html"));
}

INSTANTIATE_TEST_SUITE_P(
    Of, LaunchTest,
    ::testing::Values(
        Launch{"Links", "a.click()", "<a id=a href='mailto:a@b.example'></a>"},
        Launch{"BlankTargets", "a.click()", "<a id=a target=_blank href='mailto:a@b.example'></a>"},
        Launch{"Locations", "location.href = 'mailto:a@b.example'"},
        Launch{"Frames", "f.src = 'mailto:a@b.example'", "<iframe id=f></iframe>"},
        Launch{"Forms", "f.submit()", "<form id=f action='mailto:a@b.example' method=get></form>"},
        Launch{"Windows", "open('mailto:a@b.example')"},
        Launch{"Redirects", "f.src = '/redirect?' + n", "<iframe id=f></iframe>"},
        Launch{"ChainsOfRedirects", "f.src = '/chain?' + n", "<iframe id=f></iframe>"},
        Launch{"Refreshes", "f.srcdoc = `<meta http-equiv=refresh content='0; mailto:a@b.example?${n}'>`",
               "<iframe id=f></iframe>"},
        Launch{"ScriptsInFrames",
               "f.srcdoc = `<script>top.location.href = 'mailto:a@b.example?${n}'<` + '/script>'",
               "<iframe id=f></iframe>"},
        Launch{"Areas", "a.click()", "<map><area id=a href='mailto:a@b.example'></map>"},
        Launch{"Drawings", "a.dispatchEvent(new MouseEvent('click'))",
               "<svg><a id=a href='mailto:a@b.example'></a></svg>"},
        Launch{"FormsForWindows", "f.submit()",
               "<form id=f target=_blank action='mailto:a@b.example' method=post></form>"},
        Launch{"FormsForFrames", "f.submit()",
               "<iframe name=g></iframe><form id=f target=g action='mailto:a@b.example' method=get></form>"},
        Launch{"WindowsWithoutOpener", "open('mailto:a@b.example', '_blank', 'noopener')"},
        Launch{"Replacements", "location.replace('mailto:a@b.example')"},
        Launch{"Objects", "o.data = 'mailto:a@b.example?' + n", "<object id=o data=''></object>"}),
    [](const auto& test) { return test.param.name; });

TEST_F(PageFloodTest, APageThatReloadsItselfLaunchesNothingAnew) {
  server.page("/again.html", "<script>location.href = 'mailto:a@b.example';"
                             "setTimeout(() => location.reload(), 20)</script>");
  model->load(server.address("/again.html"));
  ASSERT_TRUE(tests::eventually([&] { return server.count("/again.html") > 10; }));
  EXPECT_THAT(opened, SizeIs(1));
  model->load(server.address("/agent.html"));
  waitForAddress("/agent.html");
}

TEST_F(PageFloodTest, ARedirectThatAClickBeganCountsAsTheClick) {
  server.redirect("/redirect", "mailto:a@b.example");
  server.page("/links.html",
              "<a href=/redirect style='display: block; height: 380px'>x</a><script>"
              "addEventListener('load', () => setTimeout(() => { location.href = 'tel:1' }))</script>");
  show("/links.html");
  ASSERT_TRUE(tests::eventually([&] { return opened; }, ElementsAre("tel:1")));
  settle();
  tests::clickOn(model->webView().widget());
  EXPECT_TRUE(tests::eventually([&] { return opened; }, ElementsAre("tel:1", "mailto:a@b.example")));
}

TEST_F(PageFloodTest, WhatTheOwnerStopsInThePagesMenuStaysStopped) {
  show("/agent.html");
  server.silence("/silent.html");
  model->load(server.address("/silent.html"));
  ASSERT_TRUE(tests::eventually([&] { return server.count("/silent.html") > 0 && *model->isLoading; }));
  settle();
  bool isPressed = false;
  auto press = Gtk::GestureClick::create();
  press->signal_pressed().connect([&](int, double, double) { isPressed = true; });
  press->set_propagation_phase(Gtk::PropagationPhase::CAPTURE);
  window->add_controller(press);
  tests::clickOn(model->webView().widget());
  ASSERT_TRUE(tests::eventually([&] { return isPressed; }));
  settle();
  webkit_web_view_stop_loading(webView()); // as the menu does
  waitForRest();
  EXPECT_EQ(server.count("/silent.html"), 1);
  EXPECT_EQ(*model->currentURLString, server.address("/agent.html"));
}

} // namespace
} // namespace quorvel
