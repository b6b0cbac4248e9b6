#include "workspace/SampleData.h"

namespace quorvel::SampleData {

const RecordList<AgentProfile>& agents() {
  static const RecordList<AgentProfile> records{
      {"main", "Main Agent", "Core", "Routing, status, and handoffs",
       "Sorting open requests across sales, orders, and finance.", "Daily command brief", AgentLoad::active,
       AccentTone::ink, "Always on"},
      {"planning", "Planning Agent", "Plan", "Goals, notes, priorities, next steps",
       "Turning the launch list into a focused week plan.", "Priority map", AgentLoad::drafting,
       AccentTone::blue, "4 tasks"},
      {"finance", "Finance Agent", "Money", "Invoices, cash flow, budgets",
       "Reviewing past-due invoices and cash timing.", "Cash summary", AgentLoad::review, AccentTone::green,
       "$18.4k"},
      {"ads", "Ads Agent", "Ads", "Google Ads, Meta Ads, retargeting",
       "Drafting a spend shift for two underperforming audiences.", "Budget recommendation",
       AgentLoad::review, AccentTone::clay, "2 drafts"},
      {"marketing", "Marketing Agent", "Growth", "Offers, email, local SEO, launches",
       "Preparing a short email sequence for a new offer.", "Campaign draft", AgentLoad::drafting,
       AccentTone::gold, "Ready 70%"},
      {"voice", "Voice Scheduling Agent", "Calls", "Calls, appointments, reminders",
       "Holding two callback summaries for review.", "Call notes", AgentLoad::review, AccentTone::mint,
       "2 calls"},
      {"support", "Sales + Support Agents", "Care", "Follow-ups, quotes, support replies",
       "Drafting customer updates from the shared inbox.", "Reply batch", AgentLoad::drafting,
       AccentTone::blue, "3 replies"},
      {"orders", "Order Management Agent", "Orders", "Orders, delays, returns, refunds",
       "Checking fulfillment notes before customer messages go out.", "Order exceptions", AgentLoad::review,
       AccentTone::green, "3 reviews"},
  };
  return records;
}

const RecordList<RequestItem>& requests() {
  static const RecordList<RequestItem> records{
      {"request-order-delay", "Delayed order customer updates", "Order Management Agent", "Gmail",
       RequestStatus::waiting,
       "Three replies are drafted after checking fulfillment notes and support history.", 0.84, "4 min ago"},
      {"request-retargeting", "Retargeting spend review", "Ads Agent", "Meta Ads", RequestStatus::drafting,
       "Audience overlap and CPA movement are being summarized into a spend recommendation.", 0.62,
       "11 min ago"},
      {"request-week-plan", "Founder weekly plan", "Planning Agent", "Quorvel app", RequestStatus::routed,
       "Notes, deadlines, and launch tasks are being grouped into a cleaner week plan.", 0.34, "19 min ago"},
      {"request-cash", "Past-due invoice summary", "Finance Agent", "QuickBooks", RequestStatus::complete,
       "Invoice risk and next collection messages are ready in the finance brief.", 1.0, "41 min ago"},
  };
  return records;
}

const RecordList<ApprovalItem>& approvals() {
  static const RecordList<ApprovalItem> records{
      {"approval-order-replies",
       "Send three delayed order replies",
       "Order Management Agent",
       "Gmail + Shopify",
       "Customer messages include updated delivery windows and a soft apology.",
       "Customer-facing",
       {"Checked order status", "Matched support history", "Drafted replies", "Holding send"},
       ApprovalState::waiting},
      {"approval-ad-spend",
       "Shift $240 from broad audience to retargeting",
       "Ads Agent",
       "Meta Ads",
       "CPA is lower on retargeting and the broad audience has stalled over three days.",
       "Ad spend",
       {"Compared CPA", "Checked frequency", "Drafted budget move", "Waiting for owner"},
       ApprovalState::waiting},
      {"approval-calendar",
       "Book two consultation callbacks",
       "Voice Scheduling Agent",
       "Phone",
       "Both callers confirmed preferred windows and contact details.",
       "Calendar",
       {"Logged call", "Checked calendar", "Prepared invites", "Holding booking"},
       ApprovalState::paused},
  };
  return records;
}

const RecordList<ConnectorItem>& connectors() {
  static const RecordList<ConnectorItem> records{
      {"gmail", "Gmail", "Messages", "envelope.fill", true, "2 min ago", AccentTone::clay},
      {"drive", "Google Drive", "Files", "folder.fill", true, "7 min ago", AccentTone::blue},
      {"calendar", "Google Calendar", "Scheduling", "calendar", true, "14 min ago", AccentTone::green},
      {"shopify", "Shopify", "Orders", "shippingbox.fill", true, "4 min ago", AccentTone::green},
      {"stripe", "Stripe", "Payments", "creditcard.fill", false, "Not connected", AccentTone::blue},
      {"quickbooks", "QuickBooks", "Finance", "banknote.fill", true, "26 min ago", AccentTone::green},
      {"meta", "Meta Ads", "Ads", "megaphone.fill", true, "8 min ago", AccentTone::blue},
      {"slack", "Slack", "Team", "bubble.left.and.bubble.right.fill", false, "Not connected",
       AccentTone::gold},
      {"notion", "Notion", "Knowledge", "doc.text.fill", false, "Not connected", AccentTone::ink},
      {"browser", "Browser Workspace", "Context", "safari.fill", true, "Live", AccentTone::mint},
  };
  return records;
}

const RecordList<ActivityItem>& activity() {
  static const RecordList<ActivityItem> records{
      {"activity-1", "Draft ready", "Order Agent prepared three customer replies.", "4 min ago",
       AccentTone::green},
      {"activity-2", "Route changed", "Main Agent moved ad analysis to Ads Agent.", "11 min ago",
       AccentTone::blue},
      {"activity-3", "Connector synced", "QuickBooks invoice data refreshed.", "26 min ago",
       AccentTone::green},
      {"activity-4", "Approval paused", "Calendar booking needs one more callback window.", "38 min ago",
       AccentTone::slate},
  };
  return records;
}

const RecordList<PricingPlan>& plans() {
  static const RecordList<PricingPlan> records{
      {"free",
       "Free",
       "$0",
       "Try one personal or business task.",
       {"20 model turns", "Main agent chat", "One saved space"},
       false,
       AccentTone::slate},
      {"starter",
       "Starter",
       "$20/mo",
       "One always-on AI agent for planning, writing, review, and follow-up.",
       {"2,000 model turns", "Helper agent checklists", "Files, drafts, and memory"},
       true,
       AccentTone::blue},
      {"operator",
       "Operator",
       "$100/mo",
       "Team work across sales, support, finance, ads, orders, and marketing.",
       {"20,000 model turns", "Helper agents", "Activity history"},
       false,
       AccentTone::green},
      {"managed",
       "Managed",
       "$1,500/mo",
       "Agent setup, process mapping, approvals, and rollout support.",
       {"Setup support", "Approval gates", "Admin controls"},
       false,
       AccentTone::gold},
  };
  return records;
}

} // namespace quorvel::SampleData
