#include "commands/CommandGroup.h"

namespace quorvel {
namespace {

std::string fullName(const Command& command) {
  return "app." + command.action;
}

} // namespace

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
      if (!command.key.empty())
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

} // namespace quorvel
