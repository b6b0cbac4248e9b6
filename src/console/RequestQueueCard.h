#pragma once

#include "brand/buttons.h"
#include "layout/KeyedRows.h"
#include "layout/stacks.h"
#include "workspace/RequestItem.h"

namespace quorvel {

class RequestMiniRow;

/// The first three requests of a list, with a way to the rest of them.
class RequestQueueCard : public VStack {
 public:
  explicit RequestQueueCard(Action open);

  void show(const RecordList<RequestItem>& requests);

 private:
  VStack* list_;
  KeyedRows<RequestItem, RequestMiniRow> rows_;
};

} // namespace quorvel
