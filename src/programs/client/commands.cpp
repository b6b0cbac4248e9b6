#include "programs/client/commands.h"

#include "client/DesktopBrowserModel.h"
#include "commands/programCommands.h"

#include <utility>

namespace quorvel {
namespace {

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

CommandGroup ownCommands(Commands::Program actions) {
  auto commands = programCommands(
      {std::move(actions.showShortcuts), std::move(actions.showAbout), std::move(actions.quit)});
  commands.insert(commands.begin(),
                  {"settings", "_Settings…", "<Control>comma", std::move(actions.showSettings)});
  return {"_Program", {std::move(commands)}};
}

} // namespace

Commands::Commands(DesktopBrowserModel& browser, Program actions)
    : client(clientCommands(browser)), program(ownCommands(std::move(actions))) {}

void Commands::addTo(Gtk::Application& application) const {
  client.addTo(application);
  program.addTo(application);
}

} // namespace quorvel
