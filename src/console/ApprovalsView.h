#pragma once

#include "layout/KeyedRows.h"
#include "layout/stacks.h"
#include "workspace/WorkspaceStore.h"

#include <optional>

namespace quorvel {

class ApprovalRow;

/// Every action that waits for the owner's decision, with the checks made so far and the two decisions.
///
/// When the button with the focus is disabled by its own press, the focus goes on to the same button of the
/// next gate that waits, or else of the one before. `store` outlives the view.
class ApprovalsView : public VStack {
 public:
  explicit ApprovalsView(WorkspaceStore& store);

 private:
  struct Focus;
  void refresh();
  std::optional<Focus> focus() const;
  void passOn(const Focus& focus);

  WorkspaceStore& store_;
  VStack* list_;
  KeyedRows<ApprovalItem, ApprovalRow> rows_;
};

} // namespace quorvel
