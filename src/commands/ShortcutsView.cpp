#include "commands/ShortcutsView.h"

#include "brand/text.h"

#include <gtkmm/shortcutlabel.h>

namespace quorvel {
namespace {

Gtk::Widget* row(const Command& command) {
  return stretched(hstack(24, {text(command.plainTitle(), {TextStyle::body}), hspacer(),
                               Gtk::make_managed<Gtk::ShortcutLabel>(command.key)}));
}

Gtk::Widget* block(const Glib::ustring& heading, const CommandGroup& commands) {
  auto* rows = vstack(10, {text(heading, {TextStyle::caption, FontWeight::black, TextColor::muted})});
  for (const auto& section : commands.sections)
    for (const auto& command : section)
      if (!command.key.empty())
        rows->add({row(command)});
  return stretched(rows);
}

} // namespace

ShortcutsView::ShortcutsView(std::initializer_list<CommandBlock> blocks) : VStack(24) {
  padded(24, this);
  for (const auto& [heading, commands] : blocks)
    add({block(heading, commands)});
}

} // namespace quorvel
