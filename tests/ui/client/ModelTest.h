#pragma once

#include "client/DesktopBrowserModel.h"
#include "engine/OwnersCommand.h"
#include "support/TemporaryFolder.h"
#include "support/TestWindow.h"
#include "ui/client/LoopbackServer.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <webkit/webkit.h>

namespace quorvel {

/// The main loop's timers, each to be let off by hand. The one for silent loads is meant where nothing else
/// is said.
class ManualTimer {
 public:
  using Delay = std::chrono::milliseconds;

  TimerFunction function() {
    return [this](Delay delay, sigc::slot<void()> task) {
      tasks_[delay] = std::move(task);
      ++starts_[delay];
      return sigc::connection(tasks_[delay]);
    };
  }
  bool isRunning(Delay delay = StallTimer::limit) { return !tasks_[delay].empty(); }
  int starts(Delay delay = StallTimer::limit) { return starts_[delay]; }
  void letOff(Delay delay = StallTimer::limit) { std::exchange(tasks_[delay], {})(); }

 private:
  std::map<Delay, sigc::slot<void()>> tasks_; // no two of the same delay run at once
  std::map<Delay, int> starts_;
};

/// A model on a real engine and a web server of its own, in folders of its own.
class ModelTest : public ::testing::Test {
 protected:
  ModelTest();
  ~ModelTest() override;

  /// Starts the program's model anew, in the folders `folder`/`name`/data and cache.
  void start(const std::string& name = "user");
  /// Loads the address and waits until it is on screen and nothing is loading.
  void show(const std::string& path);
  void waitForAddress(const std::string& path);
  /// Whether this is what the page on screen was loaded from.
  bool isDocument(const std::string& path) const;
  /// Waits until the model has seen the end of the load.
  void waitForRest();
  void runScript(const std::string& script);
  /// The engine's own view behind the model's.
  WebKitWebView* webView() const { return WEBKIT_WEB_VIEW(model->webView().widget().gobj()); }
  /// The bubble or list that the page has had opened, if any.
  GtkPopover* openPopup() const;
  /// Lets the time of the owner's commands run, twenty times as fast.
  void spendTime();
  /// Lets everything that is under way in the page and in the main loop come to an end.
  void settle();

  const tests::TemporaryFolder temporary;
  const std::filesystem::path folder = temporary.path;
  LoopbackServer server;
  /// What was handed to the system, and what to the file manager.
  std::vector<std::string> opened, shownInFolder;
  ManualTimer timer;
  std::unique_ptr<DesktopBrowserModel> model;

 private:
  struct Watch {
    int start = 0;
    std::chrono::steady_clock::time_point startedAt;
  };
  std::map<ManualTimer::Delay, Watch> watches_{{OwnersCommand::interval, {}}, {OwnersCommand::patience, {}}};
  bool isPageThere_ = false; // its process has been heard of
  std::string document_;     // the address of the document on screen
};

} // namespace quorvel
