#pragma once

#include "commands/CommandGroup.h"
#include "commands/SecondaryWindow.h"
#include "preferences/Preferences.h"
#include "workspace/WorkspaceStore.h"

#include <gtkmm/application.h>
#include <memory>

namespace quorvel {

/// The program "Quorvel Console": one window over a workspace that lives as long as the program.
///
/// Launched again it presents the window that is open; closing that ends it. Control with 1 to 8 selects a
/// section.
class ConsoleApplication : public Gtk::Application {
 public:
  static constexpr const char* identifier = "com.quorvel.Console";

  static Glib::RefPtr<ConsoleApplication>
  create(Gio::Application::Flags flags = Gio::Application::Flags::NONE);

  WorkspaceStore& store() { return store_; }

 protected:
  explicit ConsoleApplication(Gio::Application::Flags flags);
  void on_startup() override;
  void on_activate() override;
  void on_shutdown() override;

 private:
  CommandGroup sectionCommands();
  CommandGroup ownCommands();
  std::unique_ptr<Gtk::Window> makeWindow();
  /// Shows a window beside the main one, making it the first time it is asked for.
  void showBesideMain(std::unique_ptr<Gtk::Window>& window, const MakeWindow& make);

  WorkspaceStore store_;
  Preferences preferences_;
  CommandGroup sections_ = sectionCommands();
  CommandGroup program_ = ownCommands();
  std::unique_ptr<Gtk::Window> window_, shortcuts_, about_;
};

} // namespace quorvel
