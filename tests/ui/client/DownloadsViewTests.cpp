#include "client/DownloadsView.h"

#include "client/ContentView.h"
#include "support/RealInput.h"
#include "support/TextChecks.h"
#include "support/TextScale.h"
#include "ui/client/ContentWindow.h"
#include "ui/client/DownloadTest.h"

#include <gtkmm/progressbar.h>

namespace quorvel {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using tests::buttonNamed;

/// Downloads in the client's window.
class DownloadsViewTest : public DownloadTest, protected tests::ContentWindow {
 protected:
  void SetUp() override {
    DownloadTest::SetUp();
    open(*model);
  }
  void TearDown() override {
    close();
    DownloadTest::TearDown();
  }

  DownloadsView& lines() { return *tests::all<DownloadsView>(*view).front(); }
  /// The texts of the lines, those of their buttons included.
  std::vector<std::string> texts() {
    return lines().get_mapped() ? tests::texts(lines()) : std::vector<std::string>();
  }
  void waitForText(const std::string& text) {
    ASSERT_TRUE(tests::eventually([&] { return texts(); }, Contains(text)));
    tests::drawFrame(*view);
  }
  Gtk::Button& button(const char* name) { return *buttonNamed(lines(), name); }
  bool isAnyLineThere() {
    tests::drawFrame(*view);
    return lines().get_mapped();
  }
  void letTimePass() { timer.letOff(ShownDownloads::stay); }
};

TEST_F(DownloadsViewTest, ADownloadIsSeenBelowThePageFromItsStartUntilAWhileAfterItsEnd) {
  EXPECT_FALSE(isAnyLineThere());
  serveHalfAFile("/half.bin", 400'000);
  download("/half.bin");
  waitForText("100.0\u00A0kB of 400.0\u00A0kB");
  EXPECT_THAT(texts(), ElementsAre("half.bin", "100.0\u00A0kB of 400.0\u00A0kB", "Cancel"));
  EXPECT_NEAR(tests::all<Gtk::ProgressBar>(lines()).front()->get_fraction(), 0.25, 0.001);
  const auto page = tests::boundsIn(*view, model->webView().widget()), line = tests::boundsIn(*view, lines());
  EXPECT_EQ(page.get_y() + page.get_height(), line.get_y()) << "it covers nothing of the page";
  EXPECT_EQ(line.get_y() + line.get_height(), ContentView::minimumHeight);
  EXPECT_EQ(line.get_width(), page.get_width());
  EXPECT_LT(line.get_height(), 50);
}

TEST_F(DownloadsViewTest, WhatIsDoneIsShownInItsFolderAndGoesByItself) {
  download("/report.pdf");
  waitForText("Downloaded, 6 bytes");
  EXPECT_THAT(texts(), ElementsAre("report.pdf", "Downloaded, 6 bytes", "Show in folder"));
  tests::click(button("Show in folder"));
  EXPECT_THAT(shownInFolder, ElementsAre((downloads / "report.pdf").string()));
  letTimePass();
  EXPECT_FALSE(isAnyLineThere());
}

TEST_F(DownloadsViewTest, WhereTheServerDoesNotSayHowMuchComesNoProgressIsClaimed) {
  serveHalfAFile("/half.bin");
  download("/half.bin");
  waitForText("100.0\u00A0kB");
  EXPECT_FALSE(tests::all<Gtk::ProgressBar>(lines()).front()->get_mapped());
}

TEST_F(DownloadsViewTest, CancellingLeavesNothing) {
  serveHalfAFile("/half.bin");
  download("/half.bin");
  waitForText("100.0\u00A0kB");
  tests::click(button("Cancel"));
  EXPECT_TRUE(tests::eventually([&] { return files(); }, IsEmpty()));
  EXPECT_TRUE(tests::eventually([&] { return !isAnyLineThere(); }));
  EXPECT_FALSE(isRecordThere());
}

TEST_F(DownloadsViewTest, AFailureIsSaid) {
  serveAFileThatFails("/half.bin");
  download("/half.bin");
  waitForText("Could not be downloaded");
  EXPECT_THAT(texts(), ElementsAre("half.bin", "Could not be downloaded"));
  EXPECT_THAT(files(), IsEmpty());
  letTimePass();
  EXPECT_FALSE(isAnyLineThere());
}

TEST_F(DownloadsViewTest, ASiteThatIsNotThereIsSaidToo) {
  auto* session = webkit_web_view_get_network_session(webView());
  const GObjectPointer<WebKitDownload> asked(
      webkit_network_session_download_uri(session, "http://127.0.0.1:1/some/brief%20one.txt"));
  waitForText("Could not be downloaded");
  EXPECT_THAT(texts(), Contains("brief one.txt"));
}

TEST_F(DownloadsViewTest, AFolderThatCannotBeWrittenToIsSaidToo) {
  std::ofstream(downloads / "file") << "in the way";
  nameFolder((downloads / "file" / "folder").string());
  download("/report.pdf");
  waitForText("Could not be downloaded");
  EXPECT_THAT(texts(), ElementsAre("report.pdf", "Could not be downloaded"));
}

TEST_F(DownloadsViewTest, SeveralAreOneBelowTheOtherAndEachIsCancelledByItself) {
  for (const auto* path : {"/first.bin", "/second.bin", "/third.bin"}) {
    serveHalfAFile(path);
    download(path);
    waitForText(path + 1);
  }
  tests::click(*tests::all<Gtk::Button>(*tests::labelled(lines(), "second.bin")->get_parent()).front());
  EXPECT_TRUE(tests::eventually([&] { return texts(); }, Not(Contains("second.bin"))));
  EXPECT_THAT(texts(), Contains("first.bin"));
  EXPECT_THAT(texts(), Contains("third.bin"));
  EXPECT_TRUE(tests::eventually([&] { return !fs::exists(downloads / "second.bin"); }));
}

TEST_F(DownloadsViewTest, HoweverManyThereAreThePageKeepsItsPlace) {
  for (int i = 0; i < 40; ++i)
    model->downloads.show({.id = std::to_string(i), .name = "report.pdf", .state = Download::State::done});
  ASSERT_TRUE(isAnyLineThere());
  EXPECT_LT(lines().get_height(), 180);
  EXPECT_EQ(view->get_height(), ContentView::minimumHeight);
}

TEST_F(DownloadsViewTest, NothingGoesFromUnderAPointerOrTheFocus) {
  model->downloads.show({.id = "1", .name = "report.pdf", .state = Download::State::done});
  ASSERT_TRUE(isAnyLineThere());
  tests::pointAt(button("Show in folder"));
  EXPECT_TRUE(tests::eventually([&] { return !timer.isRunning(ShownDownloads::stay); }));
  tests::pointAt(model->webView().widget());
  EXPECT_TRUE(tests::eventually([&] { return timer.isRunning(ShownDownloads::stay); }));
  button("Show in folder").grab_focus();
  EXPECT_TRUE(tests::eventually([&] { return !timer.isRunning(ShownDownloads::stay); }));
  model->webView().widget().grab_focus();
  EXPECT_TRUE(tests::eventually([&] { return timer.isRunning(ShownDownloads::stay); }));
  letTimePass();
  EXPECT_FALSE(isAnyLineThere());
}

TEST_F(DownloadsViewTest, TheFocusIsNeverLostWithALine) {
  Download download{.id = "1", .name = "a.bin"};
  model->downloads.show(download);
  ASSERT_TRUE(isAnyLineThere());
  button("Cancel").grab_focus();
  download.state = Download::State::done;
  model->downloads.show(download);
  tests::drawFrame(*view);
  EXPECT_EQ(window->get_focus(), &button("Show in folder"));
  download.state = Download::State::cancelled;
  model->downloads.show(download);
  tests::drawFrame(*view);
  EXPECT_EQ(window->get_focus(), &model->webView().widget());
}

TEST_F(DownloadsViewTest, EachStateIsHeardWithItsName) {
  Download download{.id = "1", .name = "a.bin", .received = 1, .expected = 4};
  const auto words = [&]() -> Gtk::Widget& { return *tests::labelled(lines(), "a.bin"); };
  model->downloads.show(download);
  ASSERT_TRUE(isAnyLineThere());
  EXPECT_EQ(words().get_parent()->get_accessible_role(), Gtk::Accessible::Role::STATUS)
      << "which is spoken of in its turn";
  EXPECT_TRUE(tests::hasAccessibleName(words(), "Downloading a.bin"));
  EXPECT_TRUE(tests::hasAccessibleName(button("Cancel"), "Cancel a.bin"));
  EXPECT_TRUE(tests::hasAccessibleName(*tests::all<Gtk::ProgressBar>(lines()).front(), "Progress of a.bin"));
  for (const auto& [state, sentence] : {std::pair{Download::State::failed, "a.bin could not be downloaded"},
                                        {Download::State::done, "a.bin is downloaded"}}) {
    download.state = state;
    model->downloads.show(download);
    tests::drawFrame(*view);
    EXPECT_TRUE(tests::hasAccessibleName(words(), sentence));
  }
  EXPECT_TRUE(tests::hasAccessibleName(button("Show in folder"), "Show in folder: a.bin"));
}

TEST_F(DownloadsViewTest, ANameOfHostileLettersMisleadsNobody) {
  const std::string turned = "\u05D0\u202Efdp\u2067.exe";
  std::string piled = "a";
  for (int i = 0; i < 60; ++i)
    piled += "\u0301";
  for (const auto& name : {turned, piled + ".pdf"}) {
    server.answer("/hostile", [&](SoupServerMessage* message) {
      soup_server_message_set_status(message, SOUP_STATUS_OK, nullptr);
      const auto disposition = "attachment; filename*=UTF-8''" + Glib::uri_escape_string(name);
      soup_message_headers_replace(soup_server_message_get_response_headers(message), "Content-Disposition",
                                   disposition.c_str());
      soup_server_message_set_response(message, "application/octet-stream", SOUP_MEMORY_STATIC, "x", 1);
    });
    model->load(server.address("/hostile"));
    ASSERT_TRUE(tests::eventually([&] { return texts(); }, Contains("Downloaded, 1 byte")));
    tests::drawFrame(*view);
    EXPECT_LT(lines().get_height(), 100);
    EXPECT_THAT(texts().front(), AllOf(Not(HasSubstr("\u202E")), Not(HasSubstr("\u2067"))));
    EXPECT_EQ(name.substr(name.size() - 4), texts().front().substr(texts().front().size() - 4));
    letTimePass();
    ASSERT_FALSE(isAnyLineThere());
  }
}

TEST_F(DownloadsViewTest, InLargeTextNothingIsCutAndALongNameGivesWay) {
  const std::string name = std::string(150, 'x') + ".pdf";
  for (const double factor : {1.0, 1.5, 2.0}) {
    SCOPED_TRACE(factor);
    const tests::TextScale large(factor);
    model->downloads.show({.id = "1", .name = name, .received = 999'000'000, .expected = 999'900'000});
    model->downloads.show({.id = "2", .name = name, .state = Download::State::failed});
    model->downloads.show({.id = "3", .name = name, .state = Download::State::done, .received = 999'000'000});
    ASSERT_TRUE(isAnyLineThere());
    EXPECT_THAT(tests::cutTexts(lines()), IsEmpty());
    EXPECT_THAT(tests::overlappingTexts(lines()), IsEmpty());
    EXPECT_EQ(view->get_width(), ContentView::minimumWidth);
  }
}

} // namespace
} // namespace quorvel
