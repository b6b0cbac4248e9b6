#include "commands/PrimaryMenu.h"

#include "commands/nameEntries.h"
#include "layout/accessible.h"

namespace quorvel {

PrimaryMenu::PrimaryMenu(const CommandGroup& commands) {
  set_icon_name("open-menu-symbolic");
  set_has_frame(false);
  set_menu_model(commands.menu());
  set_tooltip_text("Main menu");
  setAccessibleName(*this, "Main menu");
  nameEntries(*this);
}

} // namespace quorvel
