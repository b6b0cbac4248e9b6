#include "programs/console/ConsoleApplication.h"

#include "brand/StyleSheet.h"
#include "brand/heldKeys.h"
#include "programs/console/ConsoleColumns.h"

#include <gtkmm/headerbar.h>
#include <gtkmm/window.h>
#include <string>

namespace quorvel {
namespace {

/// So wide that the inspector is there and the four figures of the command centre fill one row beside it.
constexpr int defaultWidth = 1540, defaultHeight = 960;

} // namespace

Glib::RefPtr<ConsoleApplication> ConsoleApplication::create(Gio::Application::Flags flags) {
  return Glib::make_refptr_for_instance(new ConsoleApplication(flags));
}

ConsoleApplication::ConsoleApplication(Gio::Application::Flags flags) : Gtk::Application(identifier, flags) {}

void ConsoleApplication::on_startup() {
  Gtk::Application::on_startup();
  installStyle();
  letHeldKeysActOnce();
  addShortcuts();
}

void ConsoleApplication::on_activate() {
  if (get_windows().empty()) {
    window_ = makeWindow();
    add_window(*window_);
  }
  window_->present();
}

void ConsoleApplication::on_shutdown() {
  window_.reset();
  Gtk::Application::on_shutdown();
}

void ConsoleApplication::addShortcuts() {
  for (const auto section : allCases<WorkspaceSection>()) {
    const std::string name(rawValue(section));
    add_action(name, [this, section] { store_.selectedSection = section; });
    set_accel_for_action("app." + name, std::string("<Control>") + shortcut(section));
  }
  add_action("quit", [this] { quit(); });
  set_accel_for_action("app.quit", "<Control>q");
}

std::unique_ptr<Gtk::Window> ConsoleApplication::makeWindow() {
  auto window = std::make_unique<Gtk::Window>();
  window->set_title("Quorvel Console");
  auto* header = Gtk::make_managed<Gtk::HeaderBar>();
  header->add_css_class("slim");
  window->set_titlebar(*header);
  window->set_child(*Gtk::make_managed<ConsoleColumns>(store_, preferences_));
  window->set_default_size(defaultWidth, defaultHeight);
  return window;
}

} // namespace quorvel
