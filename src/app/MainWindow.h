#pragma once

#include <gtkmm/applicationwindow.h>

namespace quorvel {

class DesktopBrowserModel;

/// The program's one window: the client below a slim header bar with both menus. No smaller than the client's
/// least size. The model has to outlive it.
class MainWindow : public Gtk::ApplicationWindow {
 public:
  MainWindow(DesktopBrowserModel& browser, Gtk::Application& application);
};

} // namespace quorvel
