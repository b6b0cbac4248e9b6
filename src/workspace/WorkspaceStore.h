#pragma once

#include "observation/Published.h"
#include "workspace/SampleData.h"
#include "workspace/WorkspaceSection.h"

namespace quorvel {

/// The console's one state, shared by its views. It starts from the sample workspace and lives in memory
/// only.
///
/// It belongs to the main thread. Lists only grow: new records come in at the front and none is ever removed.
/// An action takes a copy of a record and finds the stored one by `id`; where there is none it does nothing
/// and announces nothing. No action looks at the present state before it changes it.
class WorkspaceStore : public ObservableObject {
 public:
  Published<WorkspaceSection> selectedSection{*this, WorkspaceSection::overview};
  Published<std::string> searchText{*this, ""};
  Published<RecordList<AgentProfile>> agents{*this, SampleData::agents()};
  Published<RecordList<RequestItem>> requests{*this, SampleData::requests()};
  Published<RecordList<ApprovalItem>> approvals{*this, SampleData::approvals()};
  Published<RecordList<ConnectorItem>> connectors{*this, SampleData::connectors()};
  Published<RecordList<ActivityItem>> activity{*this, SampleData::activity()};
  Published<RecordList<PricingPlan>> plans{*this, SampleData::plans()};

  // The counts are taken anew on each read.
  int pendingApprovalCount() const; ///< approvals that are waiting
  int connectedCount() const;       ///< connectors that are connected
  int activeRequestCount() const;   ///< requests that are not complete
  int draftingCount() const;        ///< agents that are drafting or active

  /// Puts a fresh request in front, logs it and turns to the requests.
  void createRequest();
  void approve(ApprovalItem item);
  void pause(ApprovalItem item);
  /// Approves the first gate that is waiting, in list order.
  void approveFirstPending();
  /// Flips the connection and says so in `lastSync`.
  void toggleConnector(ConnectorItem item);

 private:
  bool setState(const std::string& approvalId, ApprovalState state);
  void log(std::string title, std::string detail, AccentTone tone);
};

} // namespace quorvel
