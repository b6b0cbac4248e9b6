#pragma once

#include "layout/Container.h"
#include "preferences/Preferences.h"
#include "programs/console/WindowGradient.h"
#include "workspace/WorkspaceStore.h"

namespace quorvel {

/// The console's three columns over one store, on the window's gradient.
///
/// The sidebar is 272 points wide and the inspector 320; the centre takes the rest. Below a width of 1500, or
/// where text is so large that the centre needs the room, the inspector is hidden. Never smaller than 1180 by
/// 760. Both models outlive it.
class ConsoleColumns : public Container {
 public:
  ConsoleColumns(WorkspaceStore& store, Preferences& preferences);

 protected:
  void measure_vfunc(Gtk::Orientation orientation, int forSize, int& minimum, int& natural,
                     int& minimumBaseline, int& naturalBaseline) const override;
  void size_allocate_vfunc(int width, int height, int baseline) override;
  void snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) override;

 private:
  bool hasRoomForInspector(int width) const;

  Gtk::Widget& sidebar_;
  Gtk::Widget& detail_;
  Gtk::Widget& inspector_;
  WindowGradient gradient_;
};

} // namespace quorvel
