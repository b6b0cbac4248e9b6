#pragma once

#include "AppDelegate.h"

#include <gtkmm/application.h>
#include <memory>

namespace quorvel {

class DesktopBrowserModel;
class MainWindow;
class Preferences;

/// The program. The first process of a user and display owns the browser model and the one window; another
/// start only has that window presented. Closing the window ends the program.
class QuorvelApp : public Gtk::Application {
 public:
  static constexpr const char* identifier = "com.quorvel.Desktop";

  QuorvelApp();
  ~QuorvelApp() override;

 protected:
  void on_startup() override;
  void on_activate() override;

 private:
  void addActions();
  void showSettings();
  /// Shows a window beside the main one, making it the first time it is asked for.
  template <class Make>
  void showBeside(std::unique_ptr<Gtk::Window>& window, Make&& make);

  AppDelegate appDelegate_;
  std::unique_ptr<DesktopBrowserModel> browser_;
  std::unique_ptr<Preferences> preferences_;
  std::unique_ptr<MainWindow> window_;
  std::unique_ptr<Gtk::Window> settings_, shortcuts_, about_;
};

} // namespace quorvel
