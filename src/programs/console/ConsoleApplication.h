#pragma once

#include "preferences/Preferences.h"
#include "workspace/WorkspaceStore.h"

#include <gtkmm/application.h>
#include <memory>

namespace quorvel {

/// The program "Quorvel Console": one window over a workspace that lives as long as the program.
///
/// Launched again it presents the window that is open; closing that ends it. Control with 1 to 8 selects a
/// section, with Q it quits.
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
  void addShortcuts();
  std::unique_ptr<Gtk::Window> makeWindow();

  WorkspaceStore store_;
  Preferences preferences_;
  std::unique_ptr<Gtk::Window> window_;
};

} // namespace quorvel
