#include "engine/DownloadKeeper.h"
#include "support/RealInput.h"
#include "ui/client/ModelTest.h"

#include <fstream>

namespace quorvel {
namespace {

namespace fs = std::filesystem;
using ::testing::Eq;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::UnorderedElementsAre;

/// A desktop that names a download folder, and a site with something to download.
class DownloadTest : public ModelTest {
 protected:
  void SetUp() override {
    create_directories(downloads);
    nameFolder(downloads.string());
    server.page("/tried", "");
    server.answer("/report.pdf", [](SoupServerMessage* message) {
      soup_server_message_set_status(message, SOUP_STATUS_OK, nullptr);
      soup_message_headers_replace(soup_server_message_get_response_headers(message), "Content-Disposition",
                                   "attachment");
      soup_server_message_set_response(message, "application/octet-stream", SOUP_MEMORY_STATIC, "report", 6);
    });
  }
  void TearDown() override {
    // A page's process that was still starting would miss the folders that go with this test.
    if (model)
      show("/agent.html");
    fs::remove(userFolders);
    g_reload_user_special_dirs_cache();
  }

  void nameFolder(const std::string& name) {
    create_directories(userFolders.parent_path());
    std::ofstream(userFolders) << "XDG_DOWNLOAD_DIR=\"" << name << "\"\n";
    g_reload_user_special_dirs_cache();
  }
  std::vector<std::string> files() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(downloads))
      names.push_back(entry.path().filename());
    return names;
  }
  /// Has the page download something, and waits until the file for it is there.
  void startDownload(const std::string& path) {
    server.page("/links.html", "<a id=a download href=" + path + ">x</a>");
    show("/links.html");
    runScript("a.click()");
    ASSERT_TRUE(tests::eventually([&] { return !files().empty(); }));
  }
  /// An answer that never comes to its end.
  void serveHalfAFile(const std::string& path) {
    server.answer(path, [](SoupServerMessage* message) {
      soup_server_message_set_status(message, SOUP_STATUS_OK, nullptr);
      auto* headers = soup_server_message_get_response_headers(message);
      soup_message_headers_set_encoding(headers, SOUP_ENCODING_CHUNKED);
      soup_message_headers_replace(headers, "Content-Type", "application/octet-stream");
      const std::string half(100'000, 'x'); // more than the engine looks at to tell what it is
      soup_message_body_append(soup_server_message_get_response_body(message), SOUP_MEMORY_COPY, half.data(),
                               half.size());
    });
  }

  const fs::path downloads = folder / "Downloads";
  const fs::path userFolders = fs::path(Glib::get_user_config_dir()) / "user-dirs.dirs";
};

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
  EXPECT_FALSE(fs::exists(folder / "user" / "data" / "downloads-under-way"));
}

TEST_F(DownloadTest, NothingIsLeftOfADownloadThatFails) {
  server.answer("/half.bin", [](SoupServerMessage* message) {
    soup_server_message_set_status(message, SOUP_STATUS_OK, nullptr);
    auto* headers = soup_server_message_get_response_headers(message);
    soup_message_headers_set_content_length(headers, 1'000'000);
    soup_message_headers_replace(headers, "Content-Type", "application/octet-stream");
    const std::string half(100'000, 'x');
    soup_message_body_append(soup_server_message_get_response_body(message), SOUP_MEMORY_COPY, half.data(),
                             half.size());
    const auto hangUp = +[](SoupServerMessage* sent, gpointer) {
      g_socket_close(soup_server_message_get_socket(sent), nullptr);
    };
    g_signal_connect(message, "wrote-chunk", G_CALLBACK(hangUp), nullptr);
  });
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
  EXPECT_TRUE(
      tests::eventually([&] { return !fs::exists(folder / "user" / "data" / "downloads-under-way"); }));
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
  EXPECT_TRUE(
      tests::eventually([&] { return !fs::exists(folder / "user" / "data" / "downloads-under-way"); }));
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

} // namespace
} // namespace quorvel
