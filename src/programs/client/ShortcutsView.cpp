#include "programs/client/ShortcutsView.h"

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
      if (*command.key)
        rows->add({row(command)});
  return stretched(rows);
}

} // namespace

ShortcutsView::ShortcutsView(const Commands& commands) : VStack(24) {
  padded(24, this)->add({block("Quorvel", commands.client), block("Program", commands.program)});
}

} // namespace quorvel
