#pragma once

#include "layout/WidgetPer.h"
#include "layout/stacks.h"
#include "workspace/WorkspaceStore.h"

namespace quorvel {

class MetricTile;

/// The command centre: what the product is for, four figures, the command thread, the head of the queue and
/// the latest activity. `store` outlives it.
class OverviewView : public VStack {
 public:
  explicit OverviewView(WorkspaceStore& store);

 private:
  Gtk::Widget* metricGrid();
  void refresh();

  WorkspaceStore& store_;
  WidgetPer<int (WorkspaceStore::*)() const, MetricTile> tiles_; ///< by what they count
};

} // namespace quorvel
