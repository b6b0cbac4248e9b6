#pragma once

#include "layout/stacks.h"
#include "workspace/WorkspaceStore.h"

#include <array>

namespace quorvel {

class ActivityCard;
class MetricTile;
class RequestQueueCard;

/// The command centre: what the product is for, four figures, the command thread, the head of the queue and
/// the latest activity. `store` outlives it.
class OverviewView : public VStack {
 public:
  explicit OverviewView(WorkspaceStore& store);

 private:
  Gtk::Widget* metricGrid();
  Gtk::Widget* workArea();
  void refresh();

  WorkspaceStore& store_;
  std::array<MetricTile*, 4> tiles_;
  RequestQueueCard* queue_;
  ActivityCard* activity_;
};

} // namespace quorvel
