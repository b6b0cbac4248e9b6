#include "ShortcutsWindow.h"

#include "CommandMenu.h"
#include "PrimaryMenu.h"
#include "stacks.h"
#include "text.h"

#include <algorithm>
#include <gtkmm/shortcutcontroller.h>
#include <gtkmm/shortcutlabel.h>

namespace quorvel {
namespace {

Gtk::Widget* row(const Glib::ustring& title, const Glib::ustring& key) {
  return stretched(
      hstack(24, {text(title, {TextStyle::body}), hspacer(), Gtk::make_managed<Gtk::ShortcutLabel>(key)}));
}

Gtk::Widget* block(const Glib::ustring& heading, const std::vector<CommandMenu::Entry>& entries) {
  auto* rows = vstack(10, {text(heading, {TextStyle::caption, FontWeight::black, TextColor::muted})});
  for (const auto& [title, key] : entries)
    if (!key.empty())
      rows->add({row(title, key)});
  return stretched(rows);
}

std::vector<CommandMenu::Entry> primaryEntries() {
  std::vector<CommandMenu::Entry> result;
  for (const auto& [title, action, key] : PrimaryMenu::entries()) {
    result.push_back({title, key});
    std::erase(result.back().title, '_');
  }
  return result;
}

} // namespace

ShortcutsWindow::ShortcutsWindow() {
  set_title("Keyboard Shortcuts");
  set_resizable(false);
  set_child(*padded(
      24, vstack(24, {block("Quorvel", CommandMenu::entries()), block("Program", primaryEntries())})));

  auto keys = Gtk::ShortcutController::create();
  keys->add_shortcut(Gtk::Shortcut::create(Gtk::ShortcutTrigger::parse_string("Escape"),
                                           Gtk::NamedAction::create("window.close")));
  add_controller(keys);
}

} // namespace quorvel
