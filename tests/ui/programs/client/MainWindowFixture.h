#pragma once

#include "client/ContentView.h"
#include "programs/client/MainWindow.h"
#include "programs/client/commands.h"
#include "ui/client/ModelTest.h"

#include <gtkmm/application.h>
#include <memory>
#include <optional>

namespace quorvel {

/// The program's window with its commands, on a real model that shows the agent's page.
class MainWindowFixture : public ModelTest {
 protected:
  static void SetUpTestSuite() {
    application = Gtk::Application::create("com.quorvel.Test", Gio::Application::Flags::NON_UNIQUE);
    application->register_application();
  }
  static void TearDownTestSuite() { application.reset(); }

  void SetUp() override {
    show("/agent.html");
    commands.emplace(*model, program());
    commands->addTo(*application);
    window = std::make_unique<MainWindow>(*model, *application, *commands);
    application->add_window(*window);
    window->present();
    ASSERT_TRUE(tests::eventually([&] { return !tests::all<ContentView>(*window).empty(); }));
    ASSERT_TRUE(tests::eventually([&] { return tests::all<ContentView>(*window).front()->get_width() > 0; }));
  }
  void TearDown() override { window->close(); }

  /// What becomes of the commands that concern the program.
  virtual Commands::Program program() { return {}; }

  // A process has one application.
  static inline Glib::RefPtr<Gtk::Application> application;
  std::optional<Commands> commands;
  std::unique_ptr<MainWindow> window;
};

} // namespace quorvel
