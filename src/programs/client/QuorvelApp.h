#pragma once

#include "commands/SecondaryWindow.h"
#include "programs/client/AppDelegate.h"
#include "programs/client/commands.h"

#include <functional>
#include <gtkmm/application.h>
#include <memory>
#include <optional>

namespace quorvel {

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
  void makeCommands();
  void makeWindow();
  /// Whatever else is open.
  void end();
  /// Shows a window beside the main one, making it the first time it is asked for.
  void showBesideMain(std::unique_ptr<Gtk::Window>& window, const MakeWindow& make);
  std::unique_ptr<Gtk::Window> makeSettings();

  AppDelegate appDelegate_;
  std::unique_ptr<DesktopBrowserModel> browser_;
  std::optional<Commands> commands_;
  std::unique_ptr<Preferences> preferences_;
  std::unique_ptr<MainWindow> window_;
  std::unique_ptr<Gtk::Window> settings_, shortcuts_, about_;
};

} // namespace quorvel
