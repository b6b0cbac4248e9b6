#pragma once

#include "programs/client/WindowSize.h"
#include "programs/client/commands.h"

#include <gtkmm/applicationwindow.h>

namespace quorvel {

/// The program's one window: the client below a slim header bar with both menus. No smaller than the client's
/// least size. Model, application and commands have to outlive it.
class MainWindow : public Gtk::ApplicationWindow {
 public:
  MainWindow(DesktopBrowserModel& browser, Gtk::Application& application, const Commands& commands);

  WindowSize size() const;
  void setSize(const WindowSize& size);
};

} // namespace quorvel
