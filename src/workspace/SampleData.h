#pragma once

#include "workspace/ActivityItem.h"
#include "workspace/AgentProfile.h"
#include "workspace/ApprovalItem.h"
#include "workspace/ConnectorItem.h"
#include "workspace/PricingPlan.h"
#include "workspace/RequestItem.h"

/// A small business's day: what every new workspace starts from.
///
/// Each list is built on its first use, from whichever thread, and lives until the program ends.
namespace quorvel::SampleData {

const RecordList<AgentProfile>& agents();
const RecordList<RequestItem>& requests();
const RecordList<ApprovalItem>& approvals();
const RecordList<ConnectorItem>& connectors();
const RecordList<ActivityItem>& activity(); ///< newest first
const RecordList<PricingPlan>& plans();

} // namespace quorvel::SampleData
