#include "PrimaryMenu.h"

#include "buttons.h"

#include <giomm/menu.h>

namespace quorvel {

std::vector<PrimaryMenu::Entry> PrimaryMenu::entries() {
  return {
      {"_Settings…", "app.settings", "<Control>comma"},
      {"_Keyboard Shortcuts", "app.shortcuts", "<Control>question"},
      {"_About", "app.about", ""},
      {"_Quit", "app.quit", "<Control>q"},
  };
}

PrimaryMenu::PrimaryMenu(Gtk::Application& application) {
  auto menu = Gio::Menu::create();
  for (const auto& [title, action, key] : entries()) {
    menu->append(title, action);
    if (*key)
      application.set_accel_for_action(action, key);
  }
  set_icon_name("open-menu-symbolic");
  set_menu_model(menu);
  set_tooltip_text("Main menu");
  setAccessibleName(*this, "Main menu");
}

} // namespace quorvel
