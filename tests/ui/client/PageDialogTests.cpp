#include "client/ContentView.h"
#include "client/DesktopClientSidebar.h"
#include "support/RealInput.h"
#include "support/TextChecks.h"
#include "ui/client/ContentWindow.h"
#include "ui/client/ModelTest.h"

namespace quorvel {
namespace {

using ::testing::Contains;
using ::testing::Eq;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
using tests::buttonNamed;

/// A page with dialogs, in the client's window.
class PageDialogTest : public ModelTest, protected tests::ContentWindow {
 protected:
  void SetUp() override {
    // In place of the system's own dialog for it.
    const auto onPrint = +[](WebKitWebView*, WebKitPrintOperation*, int* count) -> gboolean {
      ++*count;
      return TRUE;
    };
    g_signal_connect(webView(), "print", G_CALLBACK(onPrint), &prints);
    open(*model);
  }
  void TearDown() override { close(); }

  /// Shows a page that does this once it is there.
  void showPageThat(const std::string& does) {
    server.page("/dialogs.html",
                "<title>Dialogs</title><script>addEventListener('load', () => setTimeout(() => { " + does +
                    " }, 20))</script>");
    model->load(server.address("/dialogs.html"));
  }
  PageDialog nextDialog() {
    EXPECT_TRUE(tests::eventually([&] { return model->dialog->has_value(); }));
    tests::drawFrame(*view);
    return model->dialog->value_or(PageDialog{});
  }
  void press(const char* name) { tests::click(*buttonNamed(*view, name)); }
  bool isOnScreen(const char* name) {
    auto* button = buttonNamed(*view, name);
    return button && button->get_mapped();
  }
  Gtk::CheckButton& silence() { return *tests::all<Gtk::CheckButton>(*view).front(); }
  void expectTitle(const std::string& title) {
    EXPECT_TRUE(tests::eventually([&] { return spendTime(), *model->title; }, Eq(title)));
  }

  int prints = 0;
};

TEST_F(PageDialogTest, AnAlertIsShownOverThePageUntilItIsRead) {
  showPageThat("alert('Saved'); document.title = 'On'");
  EXPECT_EQ(nextDialog().text, "Saved");
  EXPECT_THAT(tests::texts(*view), Contains("Saved"));
  EXPECT_THAT(tests::texts(*view), Contains(server.address("")).Times(2))
      << "in the field, and whose dialog it is";
  EXPECT_FALSE(isOnScreen("Cancel"));
  EXPECT_THAT(tests::cutTexts(*view), IsEmpty());
  press("OK");
  expectTitle("On");
  tests::drawFrame(*view);
  EXPECT_FALSE(isOnScreen("OK"));
}

TEST_F(PageDialogTest, AQuestionGetsTheAnswerThatIsPressed) {
  showPageThat("document.title = [confirm('Sure?'), confirm('Really?')].join()");
  nextDialog();
  press("OK");
  ASSERT_TRUE(tests::eventually([&] { return nextDialog().text; }, Eq("Really?")));
  press("Cancel");
  expectTitle("true,false");
}

TEST_F(PageDialogTest, APromptGetsWhatIsTypedOrNothing) {
  showPageThat("document.title = [prompt('Name?', 'Ann'), prompt('Town?', 'Ulm')].join('|')");
  EXPECT_EQ(nextDialog().answer, "Ann");
  auto& entry = *tests::all<Gtk::Entry>(*view).front();
  EXPECT_EQ(entry.get_text(), "Ann");
  entry.set_text("Anna");
  press("OK");
  ASSERT_TRUE(tests::eventually([&] { return nextDialog().text; }, Eq("Town?")));
  EXPECT_EQ(entry.get_text(), "Ulm");
  press("Cancel");
  expectTitle("Anna|");
}

TEST_F(PageDialogTest, FromTheSecondOnAPageCanBeSilenced) {
  showPageThat("for (let i = 0; i < 300; ++i) { alert('Again'); document.title = i }");
  nextDialog();
  EXPECT_FALSE(silence().get_mapped());
  press("OK");
  ASSERT_TRUE(tests::eventually([&] { return nextDialog().number; }, Eq(2)));
  EXPECT_TRUE(silence().get_mapped());
  EXPECT_EQ(silence().get_label(), "Do not show more dialogs of this page");
  silence().set_active(true);
  press("OK");
  expectTitle("299");
  EXPECT_FALSE(model->dialog->has_value());

  showPageThat("alert('Another')");
  EXPECT_EQ(nextDialog().text, "Another");
}

TEST_F(PageDialogTest, APageThatReloadsItselfDoesNotCountAsAnother) {
  showPageThat("alert('Again'); location.reload()");
  nextDialog();
  press("OK");
  EXPECT_TRUE(tests::eventually([&] { return nextDialog().number; }, Eq(2)));
}

TEST_F(PageDialogTest, AMegabyteOfTextIsCut) {
  showPageThat("prompt('x'.repeat(1e6), 'ä'.repeat(1e6))");
  const auto dialog = nextDialog();
  EXPECT_EQ(dialog.text, std::string(2000, 'x').append("…"));
  EXPECT_THAT(dialog.answer, SizeIs(4'003));
  EXPECT_EQ(view->get_height(), ContentView::minimumHeight) << "a long text scrolls";
  const auto button = tests::boundsIn(*view, *buttonNamed(*view, "OK"));
  EXPECT_LT(button.get_x() + button.get_width(), ContentView::minimumWidth);
}

TEST_F(PageDialogTest, ADialogGoesWithItsPagesProcess) {
  showPageThat("alert('Saved')");
  nextDialog();
  webkit_web_view_terminate_web_process(webView());
  EXPECT_TRUE(tests::eventually([&] { return !model->dialog->has_value(); }));
}

TEST_F(PageDialogTest, PrintingNeedsAPressOfTheOwners) {
  server.page("/printed", "");
  showPageThat(
      "const go = () => { print(); print(); fetch('/printed') }; addEventListener('click', go); go()");
  ASSERT_TRUE(tests::eventually([&] { return server.count("/printed"); }, Eq(1)));
  settle();
  EXPECT_EQ(prints, 0);
  tests::clickOn(model->webView().widget());
  ASSERT_TRUE(tests::eventually([&] { return server.count("/printed"); }, Eq(2)));
  settle();
  EXPECT_EQ(prints, 1);
}

struct Loop {
  const char* name;
  const char* does;
};

void PrintTo(const Loop& loop, std::ostream* out) {
  *out << loop.name;
}

class DialogLoopTest : public PageDialogTest, public ::testing::WithParamInterface<Loop> {
 protected:
  void clickPage() {
    auto& page = model->webView().widget();
    bool isPressed = false;
    const auto presses = Gtk::GestureClick::create();
    presses->set_propagation_phase(Gtk::PropagationPhase::CAPTURE);
    presses->signal_pressed().connect([&](int, double, double) { isPressed = true; });
    page.add_controller(presses);
    tests::clickOn(page);
    EXPECT_TRUE(tests::eventually([&] { return isPressed; }));
    page.remove_controller(presses);
  }
  /// Shows a page that begins when it is touched: only then may it ask before it is left.
  void showLoop() {
    const int before = server.count("/looping");
    server.page("/looping", "");
    server.page("/dialogs.html",
                std::string("<title>Dialogs</title><script>onbeforeunload = event => event.preventDefault();"
                            "onclick = () => setTimeout(() => {"
                            "const r = new XMLHttpRequest; r.open('GET', '/looping', false); r.send();") +
                    GetParam().does + "}, 20)</script>");
    model->load(server.address("/dialogs.html"));
    expectTitle("Dialogs");
    clickPage();
    ASSERT_TRUE(tests::eventually([&] { return server.count("/looping") > before; }));
  }
};

TEST_P(DialogLoopTest, KeepsNobodyInThePage) {
  show("/agent.html");
  showLoop();
  model->goBack();
  expectTitle("Agent");
  showLoop();
  model->load(server.address("/pricing.html"));
  expectTitle("Pricing");
  EXPECT_FALSE(model->dialog->has_value());
}

INSTANTIATE_TEST_SUITE_P(
    Of, DialogLoopTest,
    ::testing::Values(Loop{"Alerts", "for (;;) alert('x')"}, Loop{"Questions", "for (;;) confirm('x')"},
                      Loop{"Prompts", "for (;;) prompt('x')"}, Loop{"Prints", "for (;;) print()"},
                      Loop{"TimedAlerts", "setInterval(() => alert('x'))"},
                      Loop{"AlertsOfFrames", "const inFrame = () => { for (;;) alert('x') };"
                                             "document.body.append(document.createElement('iframe'));"
                                             "frames[0].eval(`(${inFrame})()`)"},
                      Loop{"PrintsOfFrames", "document.body.append(document.createElement('iframe'));"
                                             "for (;;) frames[0].print()"},
                      Loop{"AlertsOnLeaving", "onpagehide = onunload = () => { for (;;) alert('x') }"},
                      Loop{"AlertsBeforeLeaving",
                           "addEventListener('beforeunload', () => { for (;;) confirm('x') })"},
                      Loop{"Departures", "setInterval(() => { location.href = '/agent.html' })"}),
    [](const auto& loop) { return loop.param.name; });

} // namespace
} // namespace quorvel
