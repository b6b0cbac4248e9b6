#pragma once

#include "client/DesktopBrowserModel.h"
#include "support/TemporaryFolder.h"
#include "support/TestWindow.h"
#include "ui/client/LoopbackServer.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <webkit/webkit.h>

namespace quorvel {

/// The main loop's timers, each to be let off by hand.
class ManualTimer {
 public:
  TimerFunction function() {
    return [this](std::chrono::milliseconds delay, sigc::slot<void()> task) {
      lastDelay = delay;
      ++starts;
      task_ = std::move(task);
      return sigc::connection(task_);
    };
  }
  bool isRunning() const { return !task_.empty(); }
  void letOff() { std::exchange(task_, {})(); }

  std::chrono::milliseconds lastDelay{0};
  int starts = 0;

 private:
  sigc::slot<void()> task_;
};

/// A model on a real engine and a web server of its own, in folders of its own.
class ModelTest : public ::testing::Test {
 protected:
  ModelTest();
  ~ModelTest() override { model.reset(); }

  /// Starts the program's model anew, in the folders `folder`/`name`/data and cache.
  void start(const std::string& name = "user");
  /// Loads the address and waits until it is on screen and nothing is loading.
  void show(const std::string& path);
  void waitForAddress(const std::string& path);
  /// Waits until the model has seen the end of the load.
  void waitForRest();
  void runScript(const std::string& script);
  /// The engine's own view behind the model's.
  WebKitWebView* webView() const { return WEBKIT_WEB_VIEW(model->webView().widget().gobj()); }
  /// Lets everything that is under way in the page and in the main loop come to an end.
  void settle();

  const tests::TemporaryFolder temporary;
  const std::filesystem::path folder = temporary.path;
  LoopbackServer server;
  /// What was handed to the system.
  std::vector<std::string> opened;
  ManualTimer timer;
  std::unique_ptr<DesktopBrowserModel> model;

 private:
  std::string document_; // the address of the document on screen
};

} // namespace quorvel
