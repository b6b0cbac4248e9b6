#include "client/QuorvelWebView.h"
#include "engine/ErrorPage.h"
#include "support/Setting.h"
#include "support/TestWindow.h"
#include "ui/client/ModelTest.h"

#include <fstream>

namespace quorvel {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

using DesktopBrowserModelTest = ModelTest;

TEST_F(DesktopBrowserModelTest, BeforeAnyNavigationEventTheFieldsHaveTheirInitialValues) {
  EXPECT_EQ(*model->title, "Quorvel");
  EXPECT_EQ(*model->currentURLString, url(QuorvelRoute::agent));
  EXPECT_FALSE(model->canGoBack);
  EXPECT_FALSE(model->canGoForward);
  EXPECT_FALSE(model->isLoading);
}

TEST_F(DesktopBrowserModelTest, TheConstructorAsksForTheAgentPage) {
  EXPECT_STREQ(webkit_web_view_get_uri(webView()), url(QuorvelRoute::agent).c_str());
  EXPECT_TRUE(webkit_web_view_is_loading(webView()));
  EXPECT_TRUE(model->isShowing(QuorvelRoute::agent));
}

TEST_F(DesktopBrowserModelTest, TheUserAgentIsTheEnginesOwnFollowedByTheProgramsName) {
  show("/pricing.html");
  ASSERT_FALSE(server.requests().empty());
  EXPECT_THAT(server.requests().front().userAgent, EndsWith(" Quorvel Desktop"));
  EXPECT_THAT(server.requests().front().userAgent, HasSubstr("AppleWebKit"));
}

TEST_F(DesktopBrowserModelTest, LoadSetsTheAddressAtOnceAndTheRestLater) {
  waitForRest();
  int announcements = 0;
  model->objectWillChange().connect([&] { ++announcements; });
  model->load(QuorvelRoute::connectors);
  EXPECT_EQ(*model->currentURLString, url(QuorvelRoute::connectors));
  EXPECT_EQ(announcements, 1);
  EXPECT_TRUE(webkit_web_view_is_loading(webView()));
  EXPECT_FALSE(model->isLoading) << "the view's state follows in a later turn of the main loop";
}

TEST_F(DesktopBrowserModelTest, EachUpdateAnnouncesTheFiveFieldsInOrderChangedOrNot) {
  waitForRest();
  using Fields = std::array<std::string, 5>;
  const auto fields = [&] {
    return Fields{model->canGoBack ? "back" : "", model->canGoForward ? "forward" : "",
                  model->isLoading ? "loading" : "", model->currentURLString, model->title};
  };
  std::vector<Fields> seen;
  model->objectWillChange().connect([&] { seen.push_back(fields()); });
  const int announcedByLoad = 1;
  show("/pricing.html");

  ASSERT_GT(seen.size(), 5u);
  ASSERT_EQ((seen.size() - announcedByLoad) % 5, 0u);
  seen.push_back(fields());
  for (std::size_t i = announcedByLoad; i + 1 < seen.size(); ++i) {
    const auto mayChange = (i - announcedByLoad) % 5;
    seen[i][mayChange] = seen[i + 1][mayChange];
    EXPECT_EQ(seen[i], seen[i + 1]) << "announcement " << i << " is about field " << mayChange;
  }
}

TEST_F(DesktopBrowserModelTest, AnUpdateThatChangesAllFiveFieldsIsAnnouncedFiveTimes) {
  show("/pricing.html");
  const bool hasBack = model->canGoBack, hasForward = model->canGoForward;
  model->canGoBack = !hasBack;
  model->canGoForward = !hasForward;
  model->isLoading = true;
  model->currentURLString = "elsewhere";
  std::vector<std::string> changed;
  const auto note = [&] {
    std::string fields;
    fields += model->canGoBack == hasBack ? "back " : "";
    fields += model->canGoForward == hasForward ? "forward " : "";
    fields += model->isLoading ? "" : "loading ";
    fields += *model->currentURLString == server.address("/pricing.html") ? "address " : "";
    fields += *model->title == "Another" ? "title " : "";
    changed.push_back(fields);
  };
  model->objectWillChange().connect(note);
  runScript("document.title = 'Another'");
  ASSERT_TRUE(tests::eventually([&] { return *model->title == "Another"; }));
  note();
  EXPECT_THAT(changed, ElementsAre("", "back ", "back forward ", "back forward loading ",
                                   "back forward loading address ", "back forward loading address title "));
}

TEST_F(DesktopBrowserModelTest, UpdatesThatWaitAreDroppedWhenTheModelGoes) {
  int announcements = 0;
  model->load(server.address("/pricing.html"));
  model->objectWillChange().connect([&] { ++announcements; });
  GObject* object = G_OBJECT(webView());
  gpointer watched = object;
  g_object_add_weak_pointer(object, &watched);
  model.reset();
  EXPECT_TRUE(tests::eventually([&] { return watched == nullptr; })) << "the view goes with its model";
  while (Glib::MainContext::get_default()->iteration(false))
    ;
  EXPECT_EQ(announcements, 0);
}

TEST_F(DesktopBrowserModelTest, TheTitleFollowsThePageAlsoWhenItComesLate) {
  show("/pricing.html");
  EXPECT_TRUE(tests::eventually([&] { return *model->title == "Pricing"; })) << *model->title;
  runScript("document.title = 'Plans for you'");
  EXPECT_TRUE(tests::eventually([&] { return *model->title == "Plans for you"; })) << *model->title;
}

TEST_F(DesktopBrowserModelTest, AnEmptyTitleIsKeptEmpty) {
  show("/pricing.html");
  server.page("/untitled.html", "<title></title><p>no title");
  show("/untitled.html");
  EXPECT_TRUE(tests::eventually([&] { return model->title->empty(); })) << *model->title;
}

TEST_F(DesktopBrowserModelTest, BackAndForwardWorkAfterAFragmentOfTheSameDocument) {
  show("/agent.html");
  ASSERT_FALSE(model->canGoBack);
  show("/agent.html#connectorsCenter");
  EXPECT_EQ(server.count("/agent.html"), 1) << "no new document is loaded";
  EXPECT_TRUE(model->isShowing(QuorvelRoute::connectors));
  EXPECT_TRUE(tests::eventually([&] { return model->canGoBack && !model->canGoForward; }));

  model->goBack();
  waitForAddress("/agent.html");
  EXPECT_TRUE(tests::eventually([&] { return !model->canGoBack && model->canGoForward; }));
  EXPECT_TRUE(model->isShowing(QuorvelRoute::agent));

  model->goForward();
  waitForAddress("/agent.html#connectorsCenter");
  EXPECT_TRUE(tests::eventually([&] { return model->canGoBack && !model->canGoForward; }));
}

TEST_F(DesktopBrowserModelTest, APagesOwnPushStateShows) {
  show("/agent.html");
  runScript("history.pushState({}, '', '/agent.html?chat=7')");
  waitForAddress("/agent.html?chat=7");
  EXPECT_TRUE(tests::eventually([&] { return *model->canGoBack; }));
  EXPECT_EQ(server.requests().size(), 1u);
}

TEST_F(DesktopBrowserModelTest, BackForwardAndReloadWithoutHistoryDoNothingHarmful) {
  show("/agent.html");
  model->goBack();
  model->goForward();
  settle();
  EXPECT_EQ(*model->currentURLString, server.address("/agent.html"));
  model->reload();
  EXPECT_TRUE(tests::eventually([&] { return server.count("/agent.html") == 2; }));
}

TEST_F(DesktopBrowserModelTest, ALinkWithABlankTargetLoadsInTheSameViewAndBackReturns) {
  server.page("/links.html", "<a id=a target=_blank href=/pricing.html>Plans</a>");
  show("/links.html");
  runScript("document.getElementById('a').click()");
  waitForAddress("/pricing.html");
  EXPECT_TRUE(tests::eventually([&] { return *model->canGoBack; }));
  model->goBack();
  waitForAddress("/links.html");
}

TEST_F(DesktopBrowserModelTest, AWindowOpenedByAScriptLoadsInTheSameViewAndBackReturns) {
  show("/agent.html");
  runScript("window.open('/pricing.html', 'plans', 'width=300')");
  waitForAddress("/pricing.html");
  EXPECT_TRUE(tests::eventually([&] { return *model->canGoBack; }));
  model->goBack();
  waitForAddress("/agent.html");
}

TEST_F(DesktopBrowserModelTest, AWindowOpenedWithoutAnAddressDoesNothing) {
  show("/agent.html");
  runScript("window.open(); window.open(''); window.open('about:blank');"
            "window.open('about:blank#x'); window.open('data:text/html,x'); window.open('blob:x')");
  settle();
  EXPECT_EQ(*model->currentURLString, server.address("/agent.html"));
  EXPECT_FALSE(model->canGoBack);
  EXPECT_EQ(server.requests().size(), 1u);
}

TEST_F(DesktopBrowserModelTest, AFrameOfAnotherSiteCannotRunItsScriptInThePageByOpeningAWindow) {
  server.page("/frame.html", "<script>window.open(\"javascript:document.title='taken over'\");"
                             "window.open('file:///etc/passwd'); parent.postMessage('done', '*')</script>");
  server.page("/host.html",
              "<title>Host</title><script>onmessage = () => { document.title += ' still' }</script>"
              "<iframe src='" +
                  server.address("/frame.html", "localhost") + "'></iframe>");
  show("/host.html");
  EXPECT_TRUE(tests::eventually([&] { return *model->title == "Host still"; })) << *model->title;
  EXPECT_EQ(*model->currentURLString, server.address("/host.html"));
}

/// Every way a page can come to a mail or telephone address, in a page that `go()` sets off.
struct WayOut {
  const char* name;
  const char* html;
  const char* address;
};

class WaysOut : public ModelTest, public ::testing::WithParamInterface<WayOut> {};

TEST_P(WaysOut, ReachTheSystemAndNeverTheView) {
  server.redirect("/redirect", GetParam().address);
  server.page("/links.html", GetParam().html);
  show("/links.html");
  std::vector<std::string> shown;
  model->objectWillChange().connect([&] { shown.push_back(model->currentURLString); });
  runScript("go()");
  ASSERT_TRUE(tests::eventually([&] { return !opened.empty(); }));
  waitForRest();
  shown.push_back(model->currentURLString);

  EXPECT_THAT(opened, ElementsAre(GetParam().address));
  EXPECT_THAT(shown, Not(Contains(HasSubstr(GetParam().address))));
  EXPECT_EQ(*model->currentURLString, server.address("/links.html"));
  EXPECT_STREQ(webkit_web_view_get_uri(webView()), server.address("/links.html").c_str());
}

INSTANTIATE_TEST_SUITE_P(
    MailAndTelephone, WaysOut,
    ::testing::Values(
        WayOut{"PlainLink", "<a id=a href='mailto:a@b.example'>x</a><script>go = () => a.click()</script>",
               "mailto:a@b.example"},
        WayOut{"PlainTelephoneLink",
               "<a id=a href='tel:+441632960000'>x</a><script>go = () => a.click()</script>",
               "tel:+441632960000"},
        WayOut{"UpperCaseLink",
               "<a id=a href='MAILTO:a@b.example'>x</a><script>go = () => a.click()</script>",
               "mailto:a@b.example"},
        WayOut{"BlankTargetLink",
               "<a id=a target=_blank href='mailto:a@b.example'>x</a><script>go = () => a.click()</script>",
               "mailto:a@b.example"},
        WayOut{"WindowOfAScript", "<script>go = () => window.open('tel:+441632960000') && 0</script>",
               "tel:+441632960000"},
        WayOut{"LocationSetByAScript", "<script>go = () => { location.href = 'mailto:a@b.example' }</script>",
               "mailto:a@b.example"},
        WayOut{"InnerFrame",
               "<iframe id=f></iframe><script>go = () => { f.src = 'mailto:a@b.example' }</script>",
               "mailto:a@b.example"},
        WayOut{"Redirect", "<script>go = () => { location.href = '/redirect' }</script>",
               "mailto:a@b.example"}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_F(DesktopBrowserModelTest, ALinkToAForeignSiteOpensInsideAndCanBeHandedToTheBrowser) {
  const auto foreign = server.address("/pricing.html", "localhost");
  server.page("/links.html", "<a id=a href='" + foreign + "'>elsewhere</a>");
  show("/links.html");
  runScript("document.getElementById('a').click()");
  ASSERT_TRUE(tests::eventually([&] { return *model->currentURLString == foreign; }));
  EXPECT_THAT(opened, IsEmpty());
  model->openExternal();
  EXPECT_THAT(opened, ElementsAre(foreign));
}

TEST_F(DesktopBrowserModelTest, AfterThePagesProcessDiedTheAddressStaysAndReloadBringsThePageBack) {
  show("/pricing.html");
  webkit_web_view_terminate_web_process(webView());
  ASSERT_TRUE(tests::eventually([&] { return *webkit_web_view_get_uri(webView()) == '\0'; }));
  while (Glib::MainContext::get_default()->iteration(false))
    ;
  EXPECT_EQ(*model->currentURLString, server.address("/pricing.html"));
  EXPECT_TRUE(model->isShowing(QuorvelRoute::pricing));
  model->openExternal();
  EXPECT_THAT(opened, ElementsAre(url(QuorvelRoute::agent))) << "the view itself has no address";

  model->reload();
  EXPECT_TRUE(tests::eventually([&] { return server.count("/pricing.html") == 2; }));
  waitForAddress("/pricing.html");
}

TEST_F(DesktopBrowserModelTest, AFailedLoadEndsTheLoadingStateAndTheAddressIsWhatTheViewReports) {
  const std::vector<std::string> addresses{"http://127.0.0.1:9/refused.html", "http://nowhere.invalid/",
                                           server.address("/missing.html"), "nonsense://address"};
  for (const auto& address : addresses) {
    model->load(address);
    EXPECT_EQ(*model->currentURLString, address);
    EXPECT_TRUE(webkit_web_view_is_loading(webView()));
    waitForRest();
    const std::string reported = webkit_web_view_get_uri(webView());
    EXPECT_EQ(*model->currentURLString, reported.empty() ? address : reported) << address;
  }
}

// The engine's own page about a load that failed is a load, too, which it sends after what it announces.
TEST_F(DesktopBrowserModelTest, TheEnginesErrorPageDoesNotTakeThePlaceOfWhatIsAskedForMeanwhile) {
  std::function<void()> next;
  const auto onEnd = +[](WebKitWebView*, WebKitLoadEvent event, std::function<void()>* task) {
    if (event == WEBKIT_LOAD_FINISHED)
      if (const auto todo = std::exchange(*task, {}))
        todo();
  };
  g_signal_connect(webView(), "load-changed", G_CALLBACK(onEnd), &next);
  for (int i = 0; i < 10; ++i) {
    next = [&] { model->load(server.address(i % 2 ? "/pricing.html" : "/agent.html")); };
    model->load("http://nowhere.invalid/");
    waitForAddress(i % 2 ? "/pricing.html" : "/agent.html");
    if (HasFatalFailure())
      return;
  }
}

/// Has the engine's page about a load that failed come when a test shows it.
class LateErrorPageTest : public DesktopBrowserModelTest {
 protected:
  void SetUp() override {
    show("/agent.html");
    const auto keepBack = +[](WebKitWebView*, WebKitLoadEvent, const char*, GError*,
                              bool* hasFailed) -> gboolean { return *hasFailed = true; };
    g_signal_connect(webView(), "load-failed", G_CALLBACK(keepBack), &hasFailed_);
    model->load(nowhere);
    ASSERT_TRUE(tests::eventually([&] { return hasFailed_; }));
    waitForRest();
  }
  void showErrorPage() { webkit_web_view_load_alternate_html(webView(), "Nothing", nowhere, nullptr); }

  static constexpr auto* nowhere = "http://nowhere.invalid/";

 private:
  bool hasFailed_ = false;
};

TEST_F(LateErrorPageTest, WhatIsAskedForMeanwhileWaitsForIt) {
  model->load(server.address("/pricing.html"));
  settle();
  EXPECT_EQ(server.count("/pricing.html"), 0);
  showErrorPage();
  waitForAddress("/pricing.html");
}

TEST_F(LateErrorPageTest, TheLastOfWhatIsAskedForMeanwhileCounts) {
  model->load(server.address("/pricing.html"));
  model->webView().goBack();
  model->load(server.address("/agent.html#last"));
  showErrorPage();
  waitForAddress("/agent.html#last");
  EXPECT_EQ(server.count("/pricing.html"), 0);
}

TEST_F(LateErrorPageTest, ItIsNotWaitedForForLong) {
  model->load(server.address("/pricing.html"));
  settle();
  timer.letOff(ErrorPage::patience);
  waitForAddress("/pricing.html");
}

TEST_F(DesktopBrowserModelTest, TheErrorPageOfWhatAPageGoesToStays) {
  const std::string nowhere = "http://nowhere.invalid/";
  show("/agent.html");
  model->load(nowhere);
  ASSERT_TRUE(tests::eventually([&] { return *model->currentURLString == nowhere; }));
  waitForRest();
  show("/pricing.html");
  runScript("location = '" + nowhere + "'");
  ASSERT_TRUE(tests::eventually([&] { return *model->currentURLString == nowhere; }));
  waitForRest();
  EXPECT_EQ(*model->currentURLString, nowhere);
  EXPECT_EQ(server.count("/pricing.html"), 1u);
}

TEST_F(DesktopBrowserModelTest, WhereTheViewReportsNoTitleTheProgramsNameStandsForIt) {
  start("fresh");
  model->title = "Another";
  server.silence("/silent.html");
  model->load(server.address("/silent.html"));
  EXPECT_TRUE(tests::eventually([&] { return *model->title == "Quorvel"; })) << *model->title;
}

TEST_F(DesktopBrowserModelTest, AServerErrorEndsTheLoadingState) {
  server.answer("/broken.html", [](SoupServerMessage* message) {
    soup_server_message_set_status(message, SOUP_STATUS_INTERNAL_SERVER_ERROR, nullptr);
  });
  model->load(server.address("/broken.html"));
  ASSERT_TRUE(tests::eventually([&] { return server.count("/broken.html") > 0; }));
  waitForRest();
  EXPECT_EQ(server.count("/broken.html"), 1);
}

TEST_F(DesktopBrowserModelTest, AConnectionThatBreaksInMidBodyEndsTheLoadingState) {
  server.hangUpInMidBody("/half.html");
  model->load(server.address("/half.html"));
  ASSERT_TRUE(tests::eventually([&] { return server.count("/half.html") > 0; }));
  waitForRest();
}

TEST_F(DesktopBrowserModelTest, ASignInAndLocalStorageSurviveARestart) {
  server.answer("/signin", [](SoupServerMessage* message) {
    soup_server_message_set_status(message, SOUP_STATUS_OK, nullptr);
    soup_message_headers_append(soup_server_message_get_response_headers(message), "Set-Cookie",
                                "session=abc; Max-Age=86400; Path=/");
    soup_server_message_set_response(message, "text/html", SOUP_MEMORY_STATIC, "signed in", 9);
  });
  show("/signin");
  runScript("localStorage.setItem('draft', 'kept')");
  settle();
  const auto hasStored = [&](const char* file, const std::string& text) {
    std::ifstream stream(folder / "user" / "data" / file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(stream), {}).find(text) != std::string::npos;
  };
  ASSERT_TRUE(tests::eventually([&] { return hasStored("cookies.sqlite", "session"); }));
  start();
  show("/agent.html");
  EXPECT_EQ(server.requests().back().cookies, "session=abc");
  runScript("document.title = localStorage.getItem('draft')");
  EXPECT_TRUE(tests::eventually([&] { return *model->title == "kept"; })) << *model->title;
}

TEST_F(DesktopBrowserModelTest, WhatIsKeptIsPrivateToTheUser) {
  using std::filesystem::perms;
  for (const char* name : {"data", "cache"})
    EXPECT_EQ(status(folder / "user" / name).permissions(), perms::owner_all) << name;
}

TEST_F(DesktopBrowserModelTest, FoldersThatWereOpenToOthersAreClosed) {
  create_directories(folder / "open" / "data");
  permissions(folder / "open" / "data", std::filesystem::perms(0755));
  start("open");
  EXPECT_EQ(status(folder / "open" / "data").permissions(), std::filesystem::perms::owner_all);
}

TEST_F(DesktopBrowserModelTest, WhereNothingCanBeKeptThePagesStillLoad) {
  std::ofstream(folder / "blocked") << "a file in the way of the folders";
  start("blocked");
  show("/pricing.html");
}

// Of scrolled windows that are gone GTK 4.8 tells the setting all the same: there is none in this suite.
TEST_F(DesktopBrowserModelTest, WhereScrollbarsTakeRoomFromThePageTheyAreSlim) {
  server.page("/long.html", "<!doctype html><body style='height: 9999px'><script>onload = () => {"
                            " document.title = innerWidth - document.documentElement.clientWidth }</script>");
  for (const auto& [isOverlaid, room] : {std::pair(true, "0"), std::pair(false, "10")}) {
    const tests::Setting overlay(Gtk::Settings::get_default()->property_gtk_overlay_scrolling(), isOverlaid);
    start(room);
    QuorvelWebView view(*model);
    const tests::TestWindow window(view, 400, 300);
    show("/long.html");
    EXPECT_TRUE(tests::eventually([&] { return *model->title == room; })) << *model->title;
  }
}

TEST_F(DesktopBrowserModelTest, AFileDroppedOnThePageDoesNotReplaceIt) {
  show("/agent.html");
  std::ofstream(folder / "dropped.html") << "<title>Dropped</title>";
  // What the engine does with a drop that the page does not take.
  webkit_web_view_load_uri(webView(), ("file://" + (folder / "dropped.html").string()).c_str());
  waitForRest();
  EXPECT_EQ(*model->currentURLString, server.address("/agent.html"));
  EXPECT_EQ(*model->title, "Agent");
  EXPECT_FALSE(model->canGoBack);
}

TEST_F(DesktopBrowserModelTest, ADownloadNeverReplacesAFile) {
  const auto downloads = folder / "Downloads";
  create_directories(downloads);
  create_directories(std::filesystem::path(Glib::get_user_config_dir()));
  std::ofstream(Glib::build_filename(Glib::get_user_config_dir(), "user-dirs.dirs"))
      << "XDG_DOWNLOAD_DIR=" << downloads << "\n";
  g_reload_user_special_dirs_cache();
  std::ofstream(downloads / "invoice.pdf") << "the user's own";
  server.answer("/invoice.pdf", [](SoupServerMessage* message) {
    soup_server_message_set_status(message, SOUP_STATUS_OK, nullptr);
    soup_server_message_set_response(message, "application/pdf", SOUP_MEMORY_STATIC, "new", 3);
  });
  server.page("/links.html", "<a id=a download href=/invoice.pdf>x</a>");
  show("/links.html");
  runScript("document.getElementById('a').click()");
  const auto size = [&](const char* name) {
    std::error_code none;
    return std::filesystem::file_size(downloads / name, none);
  };
  EXPECT_TRUE(tests::eventually([&] { return size("invoice (1).pdf") == 3; }));
  EXPECT_EQ(size("invoice.pdf"), std::string("the user's own").size());
  waitForRest();
  EXPECT_EQ(*model->currentURLString, server.address("/links.html"));
}

} // namespace
} // namespace quorvel
