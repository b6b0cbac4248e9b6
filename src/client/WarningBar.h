#pragma once

#include "layout/stacks.h"

#include <gtkmm/label.h>

namespace quorvel {

/// A sentence above the page that the owner has to know. It stays for as long as it holds, and takes no room
/// while there is none.
class WarningBar : public HStack {
 public:
  WarningBar();

  void show(const Glib::ustring& warning);

 private:
  Gtk::Label* sentence_;
};

} // namespace quorvel
