#include "workspace/SampleData.h"

#include <gmock/gmock.h>
#include <sstream>
#include <thread>

namespace quorvel {
namespace {

using ::testing::ElementsAre;

std::string shown(const std::string& text) {
  return text;
}
std::string shown(bool flag) {
  return flag ? "true" : "false";
}
std::string shown(double number) {
  std::ostringstream text;
  text << number;
  return text.str();
}
std::string shown(const std::vector<std::string>& texts) {
  std::string list;
  for (const auto& text : texts)
    list += (list.empty() ? "" : " / ") + text;
  return "[" + list + "]";
}
template <class Enumeration>
std::string shown(Enumeration value) {
  return std::string(rawValue(value));
}

/// Each record as one line: its fields in order, with bars between them.
template <Record Type>
std::vector<std::string> lines(const RecordList<Type>& records) {
  std::vector<std::string> result;
  for (const auto& record : records) {
    std::string line;
    const auto append = [&line](const auto& field) { line += (line.empty() ? "" : " | ") + shown(field); };
    std::apply([&](const auto&... fields) { (append(fields), ...); }, record.fields());
    result.push_back(line);
  }
  return result;
}

TEST(SampleData, AgentsAreTheTeamOfEight) {
  EXPECT_THAT(
      lines(SampleData::agents()),
      ElementsAre("main | Main Agent | Core | Routing, status, and handoffs | Sorting open requests across "
                  "sales, orders, and finance. | Daily command brief | Active | ink | Always on",
                  "planning | Planning Agent | Plan | Goals, notes, priorities, next steps | Turning the "
                  "launch list into a focused week plan. | Priority map | Drafting | blue | 4 tasks",
                  "finance | Finance Agent | Money | Invoices, cash flow, budgets | Reviewing past-due "
                  "invoices and cash timing. | Cash summary | Review | green | $18.4k",
                  "ads | Ads Agent | Ads | Google Ads, Meta Ads, retargeting | Drafting a spend shift for "
                  "two underperforming audiences. | Budget recommendation | Review | clay | 2 drafts",
                  "marketing | Marketing Agent | Growth | Offers, email, local SEO, launches | Preparing a "
                  "short email sequence for a new offer. | Campaign draft | Drafting | gold | Ready 70%",
                  "voice | Voice Scheduling Agent | Calls | Calls, appointments, reminders | Holding two "
                  "callback summaries for review. | Call notes | Review | mint | 2 calls",
                  "support | Sales + Support Agents | Care | Follow-ups, quotes, support replies | Drafting "
                  "customer updates from the shared inbox. | Reply batch | Drafting | blue | 3 replies",
                  "orders | Order Management Agent | Orders | Orders, delays, returns, refunds | Checking "
                  "fulfillment notes before customer messages go out. | Order exceptions | Review | green | "
                  "3 reviews"));
}

TEST(SampleData, RequestsAreTheFourQueued) {
  EXPECT_THAT(
      lines(SampleData::requests()),
      ElementsAre(
          "request-order-delay | Delayed order customer updates | Order Management Agent | Gmail | Waiting | "
          "Three replies are drafted after checking fulfillment notes and support history. | 0.84 | 4 min "
          "ago",
          "request-retargeting | Retargeting spend review | Ads Agent | Meta Ads | Drafting | Audience "
          "overlap and CPA movement are being summarized into a spend recommendation. | 0.62 | 11 min ago",
          "request-week-plan | Founder weekly plan | Planning Agent | Quorvel app | Routed | Notes, "
          "deadlines, and launch tasks are being grouped into a cleaner week plan. | 0.34 | 19 min ago",
          "request-cash | Past-due invoice summary | Finance Agent | QuickBooks | Complete | Invoice risk "
          "and next collection messages are ready in the finance brief. | 1 | 41 min ago"));
}

TEST(SampleData, ApprovalsAreTheThreeHeld) {
  EXPECT_THAT(
      lines(SampleData::approvals()),
      ElementsAre(
          "approval-order-replies | Send three delayed order replies | Order Management Agent | Gmail + "
          "Shopify | Customer messages include updated delivery windows and a soft apology. | "
          "Customer-facing | [Checked order status / Matched support history / Drafted replies / Holding "
          "send] | Needs review",
          "approval-ad-spend | Shift $240 from broad audience to retargeting | Ads Agent | Meta Ads | CPA is "
          "lower on retargeting and the broad audience has stalled over three days. | Ad spend | [Compared "
          "CPA / Checked frequency / Drafted budget move / Waiting for owner] | Needs review",
          "approval-calendar | Book two consultation callbacks | Voice Scheduling Agent | Phone | Both "
          "callers confirmed preferred windows and contact details. | Calendar | [Logged call / Checked "
          "calendar / Prepared invites / Holding booking] | Paused"));
}

TEST(SampleData, ConnectorsAreTheTenApps) {
  EXPECT_THAT(
      lines(SampleData::connectors()),
      ElementsAre("gmail | Gmail | Messages | envelope.fill | true | 2 min ago | clay",
                  "drive | Google Drive | Files | folder.fill | true | 7 min ago | blue",
                  "calendar | Google Calendar | Scheduling | calendar | true | 14 min ago | green",
                  "shopify | Shopify | Orders | shippingbox.fill | true | 4 min ago | green",
                  "stripe | Stripe | Payments | creditcard.fill | false | Not connected | blue",
                  "quickbooks | QuickBooks | Finance | banknote.fill | true | 26 min ago | green",
                  "meta | Meta Ads | Ads | megaphone.fill | true | 8 min ago | blue",
                  "slack | Slack | Team | bubble.left.and.bubble.right.fill | false | Not connected | gold",
                  "notion | Notion | Knowledge | doc.text.fill | false | Not connected | ink",
                  "browser | Browser Workspace | Context | safari.fill | true | Live | mint"));
}

TEST(SampleData, ActivityIsTheFourEntriesNewestFirst) {
  EXPECT_THAT(
      lines(SampleData::activity()),
      ElementsAre(
          "activity-1 | Draft ready | Order Agent prepared three customer replies. | 4 min ago | green",
          "activity-2 | Route changed | Main Agent moved ad analysis to Ads Agent. | 11 min ago | blue",
          "activity-3 | Connector synced | QuickBooks invoice data refreshed. | 26 min ago | green",
          "activity-4 | Approval paused | Calendar booking needs one more callback window. | 38 min ago | "
          "slate"));
}

TEST(SampleData, PlansAreTheFourOffered) {
  EXPECT_THAT(
      lines(SampleData::plans()),
      ElementsAre(
          "free | Free | $0 | Try one personal or business task. | [20 model turns / Main agent chat / One "
          "saved space] | false | slate",
          "starter | Starter | $20/mo | One always-on AI agent for planning, writing, review, and follow-up. "
          "| [2,000 model turns / Helper agent checklists / Files, drafts, and memory] | true | blue",
          "operator | Operator | $100/mo | Team work across sales, support, finance, ads, orders, and "
          "marketing. | [20,000 model turns / Helper agents / Activity history] | false | green",
          "managed | Managed | $1,500/mo | Agent setup, process mapping, approvals, and rollout support. | "
          "[Setup support / Approval gates / Admin controls] | false | gold"));
}

TEST(SampleData, ExactlyOnePlanIsFeatured) {
  std::vector<std::string> featured;
  for (const auto& plan : SampleData::plans())
    if (plan.isFeatured)
      featured.push_back(plan.id);
  EXPECT_THAT(featured, ElementsAre("starter"));
}

TEST(SampleData, ThreeConnectorsStartUnconnectedAndSaySo) {
  std::vector<std::string> unconnected;
  for (const auto& connector : SampleData::connectors()) {
    EXPECT_EQ(connector.isConnected, connector.lastSync != "Not connected") << connector.id;
    if (!connector.isConnected)
      unconnected.push_back(connector.id);
  }
  EXPECT_THAT(unconnected, ElementsAre("stripe", "slack", "notion"));
}

TEST(SampleData, FilesDraftsAndMemoryIsOneEntryWithItsCommas) {
  EXPECT_THAT(SampleData::plans()[1].included,
              ElementsAre("2,000 model turns", "Helper agent checklists", "Files, drafts, and memory"));
}

TEST(SampleData, ListsAreBuiltOnceAndSharedByAllThreads) {
  const RecordList<AgentProfile>* fromThread = nullptr;
  std::thread([&fromThread] { fromThread = &SampleData::agents(); }).join();
  EXPECT_EQ(fromThread, &SampleData::agents());
}

} // namespace
} // namespace quorvel
