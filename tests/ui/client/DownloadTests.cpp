#include "engine/DownloadKeeper.h"
#include "support/RealInput.h"
#include "ui/client/DownloadTest.h"

namespace quorvel {
namespace {

namespace fs = std::filesystem;
using ::testing::Eq;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

TEST_F(DownloadTest, APageDownloadsOncePerDocumentAndOncePerClick) {
  auto& view = model->webView().widget();
  view.set_size_request(600, 400);
  tests::TestWindow window(view, 600, 400);
  server.page("/flood.html",
              "<body style='height: 380px'><script>const flood = () => { for (let i = 0; i < 40; ++i) {"
              "const frame = document.createElement('iframe'); frame.hidden = true;"
              "frame.src = '/report.pdf?' + i; document.body.append(frame) }"
              "setTimeout(() => fetch('/tried'), 200) };"
              "addEventListener('click', flood); addEventListener('load', flood)</script>");
  show("/flood.html");
  ASSERT_TRUE(tests::eventually([&] { return server.count("/tried"); }, Eq(1)));
  EXPECT_TRUE(tests::eventually([&] { return files(); }, UnorderedElementsAre("report.pdf")));
  tests::clickOn(view);
  ASSERT_TRUE(tests::eventually([&] { return server.count("/tried"); }, Eq(2)));
  EXPECT_TRUE(
      tests::eventually([&] { return files(); }, UnorderedElementsAre("report.pdf", "report (1).pdf")));
}

TEST_F(DownloadTest, NothingIsLeftOfADownloadWhenTheProgramEnds) {
  serveHalfAFile("/half.bin");
  startDownload("/half.bin");
  model.reset();
  EXPECT_TRUE(tests::eventually([&] { return files(); }, IsEmpty()));
  EXPECT_FALSE(isRecordThere());
}

TEST_F(DownloadTest, NothingIsLeftOfADownloadThatFails) {
  serveAFileThatFails("/half.bin");
  server.page("/links.html", "<a id=a download href=/half.bin>x</a>");
  show("/links.html");
  int failures = 0;
  const auto onStart = +[](WebKitNetworkSession*, WebKitDownload* download, int* failed) {
    g_signal_connect_swapped(download, "failed", G_CALLBACK(+[](int* count) { ++*count; }), failed);
  };
  g_signal_connect(webkit_web_view_get_network_session(webView()), "download-started", G_CALLBACK(onStart),
                   &failures);
  runScript("a.click()");
  ASSERT_TRUE(tests::eventually([&] { return failures; }, Eq(1)));
  EXPECT_TRUE(tests::eventually([&] { return files(); }, IsEmpty()));
  EXPECT_TRUE(tests::eventually([&] { return !isRecordThere(); }));
}

TEST_F(DownloadTest, WhatACrashHasLeftIsRemovedAtTheNextStart) {
  serveHalfAFile("/half.bin");
  startDownload("/half.bin");
  const auto record = folder / "user" / "data" / "downloads-under-way";
  ASSERT_TRUE(tests::eventually([&] { return fs::exists(record); }));
  std::stringstream left;
  left << std::ifstream(record).rdbuf();
  model.reset();

  std::ofstream(downloads / "half.bin");
  std::ofstream(downloads / "half.bin.wkdownload") << "half";
  std::ofstream(downloads / "letter.txt") << "the user's own";
  std::ofstream(record) << left.str() << (downloads / "letter.txt").string() << '\0';
  start();
  EXPECT_THAT(files(), UnorderedElementsAre("letter.txt"));
  EXPECT_FALSE(fs::exists(record));
}

TEST_F(DownloadTest, AFinishedDownloadStays) {
  startDownload("/report.pdf");
  EXPECT_TRUE(tests::eventually([&] { return !isRecordThere(); }));
  start();
  EXPECT_THAT(files(), UnorderedElementsAre("report.pdf"));
  EXPECT_EQ(fs::file_size(downloads / "report.pdf"), 6u);
}

TEST_F(DownloadTest, WhereTheDesktopNamesNoFolderThereIsOneInTheHomeFolder) {
  const auto own = Glib::build_filename(Glib::get_home_dir(), "Downloads");
  EXPECT_EQ(downloadFolder(), downloads.string());
  nameFolder("$HOME/");
  EXPECT_EQ(downloadFolder(), own) << "a desktop that means none names the home folder";
  fs::remove(userFolders);
  g_reload_user_special_dirs_cache();
  EXPECT_EQ(downloadFolder(), own);
}

TEST_F(DownloadTest, ADestinationThatIsADownloadOrNothingIsAskedForOnceAndLeavesThePage) {
  server.answer("/nothing", [](SoupServerMessage* message) {
    soup_server_message_set_status(message, SOUP_STATUS_NO_CONTENT, nullptr);
  });
  show("/agent.html");
  runScript("document.title = 'kept'");
  ASSERT_TRUE(tests::eventually([&] { return *model->title == "kept"; }));
  for (const char* path : {"/report.pdf", "/nothing"}) {
    model->load(server.address(path));
    ASSERT_TRUE(tests::eventually([&] { return server.count(path) == 1; }));
    ASSERT_TRUE(tests::eventually([&] { return spendTime(), !*model->isLoading; }));
    settle();
    EXPECT_EQ(server.count(path), 1) << path;
    EXPECT_EQ(*model->title, "kept") << path;
  }
}

} // namespace
} // namespace quorvel
