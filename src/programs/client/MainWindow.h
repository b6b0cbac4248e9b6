#pragma once

#include "programs/client/WindowSize.h"
#include "programs/client/commands.h"

#include <gtkmm/applicationwindow.h>

namespace quorvel {

/// The program's one window: the client below a slim header bar with both menus. No smaller than the client's
/// least size. Model, application and commands have to outlive it.
///
/// When it appears it is empty for a moment: the client is made in the pauses of the main loop, which answers
/// the page's process first.
class MainWindow : public Gtk::ApplicationWindow {
 public:
  MainWindow(DesktopBrowserModel& browser, Gtk::Application& application, const Commands& commands);
  ~MainWindow() override;

  WindowSize size() const;
  void setSize(const WindowSize& size);

 protected:
  void on_map() override;

 private:
  bool showClient();

  DesktopBrowserModel& browser_;
  bool isEmpty_ = true;
  sigc::connection pause_; // in which the client is made
};

} // namespace quorvel
