#pragma once

#include "ui/client/ModelTest.h"

#include <fstream>

namespace quorvel {

/// A desktop that names a download folder, and a site with something to download.
class DownloadTest : public ModelTest {
 protected:
  static void sendHalf(SoupServerMessage* message, goffset length) {
    soup_server_message_set_status(message, SOUP_STATUS_OK, nullptr);
    auto* headers = soup_server_message_get_response_headers(message);
    if (length > 0)
      soup_message_headers_set_content_length(headers, length);
    else
      soup_message_headers_set_encoding(headers, SOUP_ENCODING_CHUNKED);
    soup_message_headers_replace(headers, "Content-Type", "application/octet-stream");
    const std::string half(100'000, 'x'); // more than the engine looks at to tell what it is
    soup_message_body_append(soup_server_message_get_response_body(message), SOUP_MEMORY_COPY, half.data(),
                             half.size());
  }

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
    std::filesystem::remove(userFolders);
    g_reload_user_special_dirs_cache();
  }

  void nameFolder(const std::string& name) {
    create_directories(userFolders.parent_path());
    std::ofstream(userFolders) << "XDG_DOWNLOAD_DIR=\"" << name << "\"\n";
    g_reload_user_special_dirs_cache();
  }
  std::vector<std::string> files() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(downloads))
      names.push_back(entry.path().filename());
    return names;
  }
  /// Has the page download something.
  void download(const std::string& address) {
    server.page("/links.html", "<a id=a download href='" + address + "'>x</a>");
    show("/links.html");
    runScript("a.click()");
  }
  /// The same, and waits until the file for it is there.
  void startDownload(const std::string& path) {
    download(path);
    ASSERT_TRUE(tests::eventually([&] { return !files().empty(); }));
  }
  /// An answer that never comes to its end, and says how long it will be if `length` is not 0.
  void serveHalfAFile(const std::string& path, goffset length = 0) {
    server.answer(path, [length](SoupServerMessage* message) { sendHalf(message, length); });
  }
  /// The same, and the server hangs up.
  void serveAFileThatFails(const std::string& path) {
    server.answer(path, [](SoupServerMessage* message) {
      sendHalf(message, 1'000'000);
      const auto hangUp = +[](SoupServerMessage* sent, gpointer) {
        g_socket_close(soup_server_message_get_socket(sent), nullptr);
      };
      g_signal_connect(message, "wrote-chunk", G_CALLBACK(hangUp), nullptr);
    });
  }
  bool isRecordThere() const {
    return std::filesystem::exists(folder / "user" / "data" / "downloads-under-way");
  }

  const std::filesystem::path downloads = folder / "Downloads";
  const std::filesystem::path userFolders =
      std::filesystem::path(Glib::get_user_config_dir()) / "user-dirs.dirs";
};

} // namespace quorvel
