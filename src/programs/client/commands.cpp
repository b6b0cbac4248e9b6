#include "programs/client/commands.h"

#include "client/DesktopBrowserModel.h"

#include <utility>

namespace quorvel {
namespace {

std::string fullName(const Command& command) {
  return std::string("app.") + command.action;
}

CommandGroup clientCommands(DesktopBrowserModel& browser) {
  const auto open = [&browser](QuorvelRoute route) { return [&browser, route] { browser.load(route); }; };
  return {"_Quorvel",
          {{{"open-agent", "Open _Agent Workspace", "<Control>n", open(QuorvelRoute::agent)},
            {"open-connectors", "Open _Connectors", "", open(QuorvelRoute::connectors)}},
           {{"back", "_Back", "<Control>bracketleft", [&browser] { browser.goBack(); },
             [&browser]() -> bool { return browser.canGoBack; }},
            {"forward", "_Forward", "<Control>bracketright", [&browser] { browser.goForward(); },
             [&browser]() -> bool { return browser.canGoForward; }},
            {"reload", "_Reload", "<Control>r", [&browser] { browser.reload(); }},
            {"open-externally", "_Open in Browser", "<Control><Shift>o",
             [&browser] { browser.openExternal(); }}}}};
}

CommandGroup programCommands(Commands::Program actions) {
  return {"_Program",
          {{{"settings", "_Settings…", "<Control>comma", std::move(actions.showSettings)},
            {"shortcuts", "_Keyboard Shortcuts", "<Control>question", std::move(actions.showShortcuts)},
            {"about", "_About", "", std::move(actions.showAbout)},
            {"quit", "_Quit", "<Control>q", std::move(actions.quit)}}}};
}

} // namespace

std::string Command::plainTitle() const {
  std::string plain = title;
  std::erase(plain, '_');
  return plain;
}

Glib::RefPtr<Gio::Menu> CommandGroup::menu() const {
  auto menu = Gio::Menu::create();
  for (const auto& section : sections) {
    auto part = Gio::Menu::create();
    for (const auto& command : section)
      part->append(command.title, fullName(command));
    menu->append_section(part);
  }
  return menu;
}

void CommandGroup::addTo(Gtk::Application& application) const {
  for (const auto& section : sections)
    for (const auto& command : section) {
      application.add_action(command.action, command.perform);
      if (*command.key)
        application.set_accel_for_action(fullName(command), command.key);
    }
}

void CommandGroup::update(Gtk::Application& application) const {
  for (const auto& section : sections)
    for (const auto& command : section)
      if (const auto action =
              std::dynamic_pointer_cast<Gio::SimpleAction>(application.lookup_action(command.action)))
        action->set_enabled(command.isEnabled());
}

Commands::Commands(DesktopBrowserModel& browser, Program actions)
    : client(clientCommands(browser)), program(programCommands(std::move(actions))) {}

void Commands::addTo(Gtk::Application& application) const {
  client.addTo(application);
  program.addTo(application);
}

} // namespace quorvel
