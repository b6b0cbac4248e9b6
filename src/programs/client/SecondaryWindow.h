#pragma once

#include <gtkmm/window.h>

namespace quorvel {

/// A window beside the main one, as large as its content. It has no buttons of its own, cannot be resized,
/// and Escape closes it.
class SecondaryWindow : public Gtk::Window {
 public:
  /// Takes over the content, a managed widget.
  SecondaryWindow(const Glib::ustring& title, Gtk::Widget& content);
};

} // namespace quorvel
