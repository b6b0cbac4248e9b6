#pragma once

#include <gtkmm/application.h>
#include <gtkmm/menubutton.h>

namespace quorvel {

/// The button at the end of the header bar with what concerns the program rather than the page. The actions
/// behind its entries, `app.settings` and so on, are the application's.
class PrimaryMenu : public Gtk::MenuButton {
 public:
  /// Gives `application` the keys of the entries.
  explicit PrimaryMenu(Gtk::Application& application);

  /// An entry's title with its mnemonic, its action and its key, empty where there is none.
  struct Entry {
    const char *title, *action, *key;
  };
  static std::vector<Entry> entries();
};

} // namespace quorvel
