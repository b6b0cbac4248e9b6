#pragma once

#include "preferences/Preferences.h"
#include "workspace/WorkspaceStore.h"

#include <gtkmm/scrolledwindow.h>
#include <optional>

namespace quorvel {

/// The console's centre column: the screen of the selected section, as high as its content, in a scroll area
/// without bars.
///
/// A screen is built when its section is turned to and gone, with whatever was typed into it, when another
/// one is; it starts at its top. Where the focus was inside the old screen it goes to the new one as a whole,
/// so that no further press of a key presses a control that has only just appeared; Tab leads to the first of
/// them. A focus elsewhere stays there. Both models outlive the view.
class DetailView : public Gtk::ScrolledWindow {
 public:
  DetailView(WorkspaceStore& store, Preferences& preferences);

 private:
  void refresh();
  Gtk::Widget* screen(WorkspaceSection section);
  bool holdsFocus();

  WorkspaceStore& store_;
  Preferences& preferences_;
  std::optional<WorkspaceSection> shown_;
};

} // namespace quorvel
