#include "programs/console/ConsoleApplication.h"

#include "brand/StyleSheet.h"
#include "brand/heldKeys.h"
#include "commands/AboutView.h"
#include "commands/PrimaryMenu.h"
#include "commands/ShortcutsView.h"
#include "commands/programCommands.h"
#include "commands/titleBar.h"
#include "programs/console/ConsoleColumns.h"

#include <string>

namespace quorvel {
namespace {

/// So wide that the inspector is there and the four figures of the command centre fill one row beside it.
constexpr int defaultWidth = 1540, defaultHeight = 960;

About aboutConsole() {
  return {.name = "Quorvel Console",
          .version = QUORVEL_VERSION,
          .summary = "Workspace console",
          .icon = ConsoleApplication::identifier,
          .details = {toolkitVersion(), "Preferences: " + Preferences::standardPath(),
                      "The workspace is a sample in memory: nothing else is kept."}};
}

} // namespace

Glib::RefPtr<ConsoleApplication> ConsoleApplication::create(Gio::Application::Flags flags) {
  return Glib::make_refptr_for_instance(new ConsoleApplication(flags));
}

ConsoleApplication::ConsoleApplication(Gio::Application::Flags flags) : Gtk::Application(identifier, flags) {
  installSymbols();
  unset_resource_base_path(); // where the toolkit would look for more symbols, and read them all again
}

void ConsoleApplication::on_startup() {
  Gtk::Application::on_startup();
  installStyle();
  letHeldKeysActOnce();
  sections_.addTo(*this);
  program_.addTo(*this);
}

void ConsoleApplication::on_activate() {
  if (get_windows().empty()) {
    window_ = makeWindow();
    add_window(*window_);
    // Not by itself: a window beside it may be there still.
    const auto endWithWindow = [this] {
      quit();
      return false;
    };
    window_->signal_close_request().connect(endWithWindow, false);
  }
  window_->present();
}

void ConsoleApplication::on_shutdown() {
  for (auto* window : {&about_, &shortcuts_, &window_})
    window->reset();
  Gtk::Application::on_shutdown();
}

CommandGroup ConsoleApplication::sectionCommands() {
  std::vector<Command> commands;
  for (const auto section : allCases<WorkspaceSection>())
    commands.push_back({std::string(rawValue(section)), std::string(title(section)),
                        std::string("<Control>") + shortcut(section),
                        [this, section] { store_.selectedSection = section; }});
  return {"_Section", {commands}};
}

CommandGroup ConsoleApplication::ownCommands() {
  const auto makeShortcuts = [this] {
    return makeShortcutsWindow({{"Section", sections_}, {"Program", program_}});
  };
  return {
      "_Program",
      {programCommands({[this, makeShortcuts] { showBesideMain(shortcuts_, makeShortcuts); },
                        [this] { showBesideMain(about_, [] { return makeAboutWindow(aboutConsole()); }); },
                        [this] { quit(); }})}};
}

void ConsoleApplication::showBesideMain(std::unique_ptr<Gtk::Window>& window, const MakeWindow& make) {
  if (!window_)
    activate(); // a command came over the message bus before anything else
  showBeside(*window_, window, make);
}

std::unique_ptr<Gtk::Window> ConsoleApplication::makeWindow() {
  auto window = std::make_unique<Gtk::Window>();
  window->set_title("Quorvel Console");
  window->set_icon_name(identifier);
  auto* menu = Gtk::make_managed<PrimaryMenu>(program_);
  menu->set_primary(true); // F10 opens it: there is no menu bar
  giveTitleBar(*window).pack_end(*menu);
  window->set_child(*Gtk::make_managed<ConsoleColumns>(store_, preferences_));
  window->set_default_size(defaultWidth, defaultHeight);
  return window;
}

} // namespace quorvel
