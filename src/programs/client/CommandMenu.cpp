#include "programs/client/CommandMenu.h"

#include "client/DesktopBrowserModel.h"
#include "commands/nameEntries.h"
#include "layout/accessible.h"
#include "observation/observe.h"

namespace quorvel {
namespace {

Glib::RefPtr<Gio::Menu> menuBar(const CommandGroup& commands) {
  auto bar = Gio::Menu::create();
  bar->append_submenu(commands.title, commands.menu());
  return bar;
}

} // namespace

CommandMenu::CommandMenu(const CommandGroup& commands, DesktopBrowserModel& browser,
                         Gtk::Application& application)
    : Gtk::PopoverMenuBar(menuBar(commands)), commands_(commands), application_(application) {
  setAccessibleName(*this, "Commands");
  nameEntries(*this);
  observe(browser, *this, &CommandMenu::refresh);
}

} // namespace quorvel
