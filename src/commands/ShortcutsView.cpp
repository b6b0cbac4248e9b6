#include "commands/ShortcutsView.h"

#include "brand/text.h"
#include "layout/accessible.h"

#include <gtkmm/accelerator.h>
#include <gtkmm/shortcutlabel.h>

namespace quorvel {
namespace {

Gtk::Widget* keysOf(const Command& command) {
  auto* keys = Gtk::make_managed<Gtk::ShortcutLabel>(command.key);
  guint key = 0;
  Gdk::ModifierType held{};
  Gtk::Accelerator::parse(command.key, key, held);
  setAccessibleName(*keys, Gtk::Accelerator::get_label(key, held));
  return keys;
}

Gtk::Widget* row(const Command& command) {
  return stretched(hstack(24, {text(command.plainTitle(), {TextStyle::body}), hspacer(), keysOf(command)}));
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

std::unique_ptr<SecondaryWindow> makeShortcutsWindow(std::initializer_list<CommandBlock> blocks) {
  return std::make_unique<SecondaryWindow>("Keyboard Shortcuts", *Gtk::make_managed<ShortcutsView>(blocks));
}

} // namespace quorvel
