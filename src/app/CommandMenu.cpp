#include "CommandMenu.h"

#include "DesktopBrowserModel.h"
#include "observe.h"

#include <array>
#include <giomm/menu.h>

namespace quorvel {
namespace {

struct Command {
  const char* action;
  const char* title; // with its mnemonic
  const char* key;
  void (*perform)(DesktopBrowserModel&);
};
constexpr std::array openCommands{
    Command{"open-agent", "Open _Agent Workspace", "<Control>n",
            [](DesktopBrowserModel& browser) { browser.load(QuorvelRoute::agent); }},
    Command{"open-connectors", "Open _Connectors", "",
            [](DesktopBrowserModel& browser) { browser.load(QuorvelRoute::connectors); }},
};
constexpr std::array pageCommands{
    Command{"back", "_Back", "<Control>bracketleft", [](DesktopBrowserModel& browser) { browser.goBack(); }},
    Command{"forward", "_Forward", "<Control>bracketright",
            [](DesktopBrowserModel& browser) { browser.goForward(); }},
    Command{"reload", "_Reload", "<Control>r", [](DesktopBrowserModel& browser) { browser.reload(); }},
    Command{"open-externally", "_Open in Browser", "<Control><Shift>o",
            [](DesktopBrowserModel& browser) { browser.openExternal(); }},
};

constexpr const char* group = "browser";

std::string fullName(const Command& command) {
  return std::string(group) + "." + command.action;
}

template <class Visit>
void forEachCommand(Visit&& visit) {
  for (const auto& command : openCommands)
    visit(command);
  for (const auto& command : pageCommands)
    visit(command);
}

template <class Commands>
Glib::RefPtr<Gio::Menu> section(const Commands& commands) {
  auto menu = Gio::Menu::create();
  for (const auto& command : commands)
    menu->append(command.title, fullName(command));
  return menu;
}

Glib::RefPtr<Gio::Menu> menuBar() {
  auto menu = Gio::Menu::create();
  menu->append_section(section(openCommands));
  menu->append_section(section(pageCommands));
  auto bar = Gio::Menu::create();
  bar->append_submenu("_Quorvel", menu);
  return bar;
}

} // namespace

CommandMenu::CommandMenu(DesktopBrowserModel& browser, Gtk::Application& application, Gtk::Widget& window)
    : Gtk::PopoverMenuBar(menuBar()), browser_(browser) {
  forEachCommand([&](const Command& command) {
    actions_->add_action(command.action, [&browser, perform = command.perform] { perform(browser); });
    if (*command.key)
      application.set_accel_for_action(fullName(command), command.key);
  });
  window.insert_action_group(group, actions_);
  observe(browser, *this, &CommandMenu::refresh);
}

std::vector<CommandMenu::Entry> CommandMenu::entries() {
  std::vector<Entry> result;
  forEachCommand([&](const Command& command) {
    std::string title = command.title;
    std::erase(title, '_');
    result.push_back({title, command.key});
  });
  return result;
}

void CommandMenu::refresh() {
  setEnabled("back", browser_.canGoBack);
  setEnabled("forward", browser_.canGoForward);
}

void CommandMenu::setEnabled(const char* action, bool isEnabled) {
  std::dynamic_pointer_cast<Gio::SimpleAction>(actions_->lookup_action(action))->set_enabled(isEnabled);
}

} // namespace quorvel
