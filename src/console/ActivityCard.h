#pragma once

#include "layout/KeyedRows.h"
#include "layout/stacks.h"
#include "workspace/ActivityItem.h"

namespace quorvel {

class ActivityRow;

/// The first four entries of the activity feed, which are its newest.
class ActivityCard : public VStack {
 public:
  ActivityCard();

  void show(const RecordList<ActivityItem>& activity);

 private:
  VStack* list_;
  KeyedRows<ActivityItem, ActivityRow> rows_;
};

} // namespace quorvel
