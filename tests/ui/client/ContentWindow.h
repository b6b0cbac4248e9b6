#pragma once

#include "client/ContentView.h"
#include "support/TestWindow.h"

#include <memory>

namespace quorvel::tests {

/// A part of tests of what is in the client's window, which it opens at its least size.
class ContentWindow {
 protected:
  void open(DesktopBrowserModel& model) {
    view = std::make_unique<ContentView>(model);
    window = std::make_unique<TestWindow>(*view, ContentView::minimumWidth, ContentView::minimumHeight);
  }
  void close() {
    window.reset();
    view.reset();
  }

  std::unique_ptr<ContentView> view;
  std::unique_ptr<TestWindow> window;
};

} // namespace quorvel::tests
