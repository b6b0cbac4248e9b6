#pragma once

#include <functional>
#include <gtkmm/window.h>
#include <memory>

namespace quorvel {

/// A window beside the main one, as large as its content below a title bar. It cannot be resized, and Escape
/// closes it.
class SecondaryWindow : public Gtk::Window {
 public:
  /// Takes over the content, a managed widget.
  SecondaryWindow(const Glib::ustring& title, Gtk::Widget& content);

  /// Has the focus be on this part of the content whenever the window appears.
  void startAt(Gtk::Widget& first);
};

using MakeWindow = std::function<std::unique_ptr<Gtk::Window>()>;

/// Shows a window beside an application's main one, making it the first time it is asked for.
void showBeside(Gtk::Window& main, std::unique_ptr<Gtk::Window>& window, const MakeWindow& make);

} // namespace quorvel
