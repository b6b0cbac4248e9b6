#pragma once

#include "brand/buttons.h"
#include "layout/stacks.h"

#include <gtkmm/image.h>
#include <gtkmm/label.h>

namespace quorvel {

/// A row of a sidebar: symbol, title and subtitle, on a raised panel while it is selected. A press on it runs
/// the action.
class NavigationRow : public HStack {
 public:
  /// What a press has to hit: the label alone, or the whole panel with its padding.
  enum class Target { label, panel };

  NavigationRow(const Glib::ustring& title, const Glib::ustring& subtitle, std::string_view symbolName,
                Target target, Action action);

  void setSelected(bool isSelected);
  /// Puts a managed widget at the far end of the label.
  void addTrailing(Gtk::Widget* widget);
  /// What assistive technology may add to the title, which is the row's name; at first that is the subtitle.
  void describe(const Glib::ustring& description);

 private:
  Gtk::Image* symbol_;
  Gtk::Label* title_;
  HStack* label_;
  Gtk::Button* button_;
  Gtk::Widget* panel_;
};

} // namespace quorvel
