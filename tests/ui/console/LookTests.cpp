#include "console/AgentsView.h"
#include "console/ApprovalsView.h"
#include "console/BrowserWorkspaceView.h"
#include "console/ConnectorsView.h"
#include "console/InspectorPanel.h"
#include "console/OverviewView.h"
#include "console/PricingView.h"
#include "console/RequestsView.h"
#include "console/SecurityView.h"
#include "console/SidebarView.h"
#include "support/Looks.h"
#include "support/TemporaryFolder.h"
#include "support/TestWindow.h"

#include <set>

namespace quorvel {
namespace {

using namespace quorvel::tests;

/// A workspace with a record or two of each kind and of each state.
class LookTest : public ::testing::Test {
 protected:
  LookTest() {
    const auto keep = [](auto& list, std::size_t first, std::size_t second) {
      list.update([=](auto& records) { records = {records[first], records[second]}; });
    };
    keep(store.agents, 0, 2);
    keep(store.approvals, 0, 2);
    keep(store.connectors, 0, 4);
    keep(store.activity, 0, 3);
    keep(store.plans, 0, 1);
    store.requests.update([](auto& records) { records = {records[1]}; });
    store.approvals.update([](auto& records) {
      auto approved = records[0];
      approved.id = "approved";
      approved.state = ApprovalState::approved;
      approved.steps = {};
      records.push_back(approved);
    });
  }

  template <class View, class... Arguments>
  void expectLook(int width, const std::string& look, Arguments&... arguments) {
    auto* view = Gtk::make_managed<View>(arguments...);
    TestWindow window(*view, width);
    if (!comesToLook(*view, look)) {
      EXPECT_EQ(lookOf(*view), look);
    }
  }

  TemporaryFolder folder;
  WorkspaceStore store;
  Preferences preferences{folder.path / "preferences.ini"};
};

TEST_F(LookTest, TheSidebar) {
  expectLook<SidebarView>(272, R"(
gradient 0.025:0.02:0.019 0.012:0.012:0.013 downwards
padded 20 0 0 0
column 18
padded 18 0
row 12
shadow blue/0.16 0 3.8 9.12, ground control round 9.12, line white/0.16 round 9.12
column 2
"Quorvel" 16 600 white
"Agent workspace" 11 600 secondary
spacer
padded 18 0
ground control round 10
button
padded 0 13
"+ New chat" 14 700 black
padded 0 12 18 12
column 22
column 6
padded 16 0
"Workspace" 11 900 muted
ground raised round 10, line white/0.18
padded 12 10
button
row 12
*rectangle.3.group 17 600 green
column 2
"Command Center" 14 700 white
"Today at a glance" 11 600 muted
spacer
padded 12 10
button
row 12
*person.2.wave.2 17 600 muted
column 2
"Agent Team" 14 700 secondary
"Specialized helpers" 11 600 muted
spacer
padded 12 10
button
row 12
*tray.and.arrow.down 17 600 muted
column 2
"Live Requests" 14 700 secondary
"Queued work" 11 600 muted
spacer
ground raised capsule
padded 8 4
"1" 10 900 secondary
padded 12 10
button
row 12
*checkmark.seal 17 600 muted
column 2
"Approvals" 14 700 secondary
"Human gates" 11 600 muted
spacer
ground raised capsule
padded 8 4
"1" 10 900 secondary
padded 12 10
button
row 12
*point.3.connected.trianglepath.dotted 17 600 muted
column 2
"Connectors" 14 700 secondary
"App access" 11 600 muted
spacer
ground raised capsule
padded 8 4
"1" 10 900 secondary
padded 12 10
button
row 12
*safari 17 600 muted
column 2
"Browser" 14 700 secondary
"Page context" 11 600 muted
spacer
padded 12 10
button
row 12
*lock.shield 17 600 muted
column 2
"Trust" 14 700 secondary
"Controls" 11 600 muted
spacer
padded 12 10
button
row 12
*chart.bar 17 600 muted
column 2
"Plans" 14 700 secondary
"Subscription fit" 11 600 muted
spacer
column 6
padded 16 0
"Active agents" 11 900 muted
column 6
padded 12 8
row 10
ground white capsule
column 1
"Core" 13 700 secondary
"Active" 11 600 muted
padded 12 8
row 10
ground green capsule
column 1
"Money" 13 700 secondary
"Review" 11 600 muted
padded 4 0
ground raised round 10, line white/0.18
padded 14
column 8
row 8
"LIVE MONITOR" 11 900 green
spacer
ground green capsule, line green/0.18
padded 9 5
"Live" 11 700 background
"Order Agent is holding 3 customer replies." 11 600 secondary
)",
                          store);
}

TEST_F(LookTest, TheInspector) {
  expectLook<InspectorPanel>(320, R"(
ground 0.03:0.031:0.033
padded 18
column 18
row 10
*rectangle.3.group 20 600 green
column 2
"Command Center" 14 700 white
"Today at a glance" 11 400 white/0.55
column 10
ground raised round 10, line white/0.115
padded 12
row 8
column 2
"1" 18 600 white
"Active requests" 11 400 white/0.55
spacer
ground blue/0.14 capsule
ground blue capsule
ground raised round 10, line white/0.115
padded 12
row 8
column 2
"1" 18 600 white
"Pending approvals" 11 400 white/0.55
spacer
ground gold/0.14 capsule
ground gold capsule
ground raised round 10, line white/0.115
padded 12
row 8
column 2
"1" 18 600 white
"Connected apps" 11 400 white/0.55
spacer
ground green/0.14 capsule
ground green capsule
column 10
"Priority" 12 600 white
column 10
ground raised round 10, line white/0.115
padded 12
column 8
row 8
ground gold/0.14 capsule, line gold/0.18
padded 9 5
"Needs review" 11 700 gold
spacer
"Order Management Agent" 11 400 white/0.55
"Send three delayed order replies" 13 500 white
ground raised round 10, line white/0.115
padded 12
column 8
row 8
ground slate/0.14 capsule, line slate/0.18
padded 9 5
"Paused" 11 700 slate
spacer
"Voice Scheduling Agent" 11 400 white/0.55
"Book two consultation callbacks" 13 500 white
ground raised round 10, line white/0.115
padded 12
column 8
row 8
ground green/0.14 capsule, line green/0.18
padded 9 5
"Approved" 11 700 green
spacer
"Order Management Agent" 11 400 white/0.55
"Send three delayed order replies" 13 500 white
column 10
"Recent activity" 12 600 white
column 10
row 10 top
padded 6 0 0 0
ground green capsule
column 2
"Draft ready" 13 500 white
"4 min ago" 10 400 white/0.55
row 10 top
padded 6 0 0 0
ground slate capsule
column 2
"Approval paused" 13 500 white
"38 min ago" 10 400 white/0.55
spacer
)",
                             store);
}

TEST_F(LookTest, TheCommandCentre) {
  expectLook<OverviewView>(1000, R"(
column 24
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 24
form row 28
column 16
column 8
"ALWAYS-ON AI AGENTS" 11 900 green
"Quorvel is a command tool." 34 700 white
"Less rounded startup-app energy. More precise, quiet, operator-grade interface for agent work." 13 400 secondary
row 10
ground control round 7
button 28 high
inset 12 0
row 6
*plus.message.fill 16 400 black
"New Request" 13 600 black
ground white/0.08 round 7, line white/0.115
button 28 high
inset 12 0
row 6
*checkmark.seal.fill 16 400 white
"Review Queue" 13 500 white
ground white/0.08 round 7, line white/0.115
button 28 high
inset 12 0
row 6
*point.3.connected.trianglepath.dotted 16 400 white
"Connectors" 13 500 white
spacer 24
shadow blue/0.16 0 10.4 24.96, ground control round 24.96, line white/0.16 round 24.96
form row 14
ground panel round 10, line white/0.115
padded 18
column 16
row 8
ground blue capsule
spacer
*arrow.up.right 13 700 blue
column 3
"Active requests" 11 700 muted
"1" 30 600 rounded white
"Routed or drafting" 11 400 muted
ground panel round 10, line white/0.115
padded 18
column 16
row 8
ground gold capsule
spacer
*arrow.up.right 13 700 gold
column 3
"Approval queue" 11 700 muted
"1" 30 600 rounded white
"Waiting on you" 11 400 muted
ground panel round 10, line white/0.115
padded 18
column 16
row 8
ground green capsule
spacer
*arrow.up.right 13 700 green
column 3
"Agents working" 11 700 muted
"1" 30 600 rounded white
"Currently active" 11 400 muted
ground panel round 10, line white/0.115
padded 18
column 16
row 8
ground clay capsule
spacer
*arrow.up.right 13 700 clay
column 3
"Connected tools" 11 700 muted
"1" 30 600 rounded white
"Synced sources" 11 400 muted
form row 18
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 16
row 8
column 3
"Chats" 18 700 white
"Ask, monitor, approve." 11 600 secondary
spacer
ground green capsule, line green/0.18
padded 9 5
"Live" 11 700 background
column 12
row 8
ground raised round 10, line white/0.18
padded 16
column 5
"MAIN AGENT" 11 900 blue
"What should move today?" 16 700 white
"Ask, monitor, approve." 11 600 secondary
spacer 72
row 8
spacer 72
ground 0.02:0.105:0.22 round 10, line blue
padded 16
column 5
"YOU" 11 900 white
"Show me anything waiting for approval." 16 700 white
row 8
ground raised round 10, line white/0.18
padded 16
column 5
"ORDER AGENT" 11 900 green
"Three order replies are drafted." 16 700 white
"Nothing sends until you approve." 11 600 secondary
spacer 72
ground raised round 10, line white/0.18
padded 16
row 14
column 6
"APPROVAL READY" 11 900 green
"Send 3 customer updates" 14 700 white
spacer
ground control round 8
padded 18 10
"Review" 13 900 black
row 10
ground raised round 10, line white/0.115
inset 12 10
"Ask Quorvel to review open customer updates" 14 400 white
ground control capsule
button 34 high
*arrow.up 17 700 black
column 18
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 14
row 8
"Live queue" 14 700 white
spacer
button
"Open" 13 500 blue
padded 0 7
column 9
row 8 top
column 2
"Retargeting spend review" 13 600 white
"Ads Agent" 11 400 white/0.55
spacer
ground green/0.14 capsule, line green/0.18
padded 9 5
"Drafting" 11 700 green
ground white/0.12 capsule
ground green capsule
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 14
"Activity" 14 700 white
column 14
row 10 top
ground green round 3
column 3
row 8
"Draft ready" 13 500 white
spacer
"4 min ago" 10 400 white/0.55
"Order Agent prepared three customer replies." 11 400 white/0.55
row 10 top
ground slate round 3
column 3
row 8
"Approval paused" 13 500 white
spacer
"38 min ago" 10 400 white/0.55
"Calendar booking needs one more callback window." 11 400 white/0.55
)",
                           store);
}

TEST_F(LookTest, TheAgents) {
  expectLook<AgentsView>(1000, R"(
column 22
column 8
"AGENT TEAM" 11 900 green
"Specialists that pick up the work" 34 700 white
"Each helper has a bounded job, a visible status, and outputs that wait for review when the action matters." 13 400 secondary
form row 14
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 16
row 8 top
ground white/0.14 capsule
"Co" 11 900 white
spacer
ground white/0.14 capsule, line white/0.18
padded 9 5
"Active" 11 700 white
column 7
"Main Agent" 16 600 white
"Routing, status, and handoffs" 13 400 secondary
ground white/0.115
column 10
row 8 top
"Now" 11 400 white
"Sorting open requests across sales, orders, and finance." 11 400 white/0.55
row 8
"Output" 11 400 white
"Daily command brief" 11 400 white/0.55
row 8
"Signal" 11 400 white
"Always on" 11 400 white/0.55
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 16
row 8 top
ground green/0.14 capsule
"Mo" 11 900 green
spacer
ground green/0.14 capsule, line green/0.18
padded 9 5
"Review" 11 700 green
column 7
"Finance Agent" 16 600 white
"Invoices, cash flow, budgets" 13 400 secondary
ground white/0.115
column 10
row 8
"Now" 11 400 white
"Reviewing past-due invoices and cash timing." 11 400 white/0.55
row 8
"Output" 11 400 white
"Cash summary" 11 400 white/0.55
row 8
"Signal" 11 400 white
"$18.4k" 11 400 white/0.55
)",
                         store);
}

TEST_F(LookTest, TheRequests) {
  expectLook<RequestsView>(1000, R"(
column 22
row 8 bottom
column 8
"LIVE REQUESTS" 11 900 green
"Work moving through agents" 34 700 white
"The queue shows source, assigned helper, current status, and the path toward a held draft or completed result." 13 400 secondary
spacer
ground control round 7
button 28 high
inset 12 0
row 6
*plus 16 400 black
"New Request" 13 600 black
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 16
row 16 top
column 6
row 8
ground green/0.14 capsule, line green/0.18
padded 9 5
"Drafting" 11 700 green
"Meta Ads" 11 500 white/0.55
"Retargeting spend review" 16 600 white
"Audience overlap and CPA movement are being summarized into a spend recommendation." 13 400 secondary
spacer
column 8 trailing
"Ads Agent" 13 500 white
"11 min ago" 11 400 white/0.55
ground white/0.12 capsule
ground green capsule
row 10
ground blue/0.14 capsule, line white/0.115
padded 0 8
"Found" 11 700 blue
ground green/0.14 capsule, line white/0.115
padded 0 8
"Drafted" 11 700 green
ground raised capsule, line white/0.115
padded 0 8
"Review" 11 700 white/0.55
ground raised capsule, line white/0.115
padded 0 8
"Done" 11 700 white/0.55
)",
                           store);
}

TEST_F(LookTest, TheApprovals) {
  expectLook<ApprovalsView>(1000, R"(
column 22
column 8
"HUMAN GATES" 11 900 green
"Important actions wait here" 34 700 white
"Finance, ad spend, bookings, customer-facing messages, and connected-app changes are separated from normal drafting." 13 400 secondary
form column 12
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 16
column 8
"Send three delayed order replies" 16 600 white
row 8
ground gold capsule, line gold/0.18
padded 9 5
"Needs review" 11 700 background
ground clay/0.14 capsule, line clay/0.18
padded 9 5
"Customer-facing" 11 700 clay
row 16 top
"Customer messages include updated delivery windows and a soft apology." 13 400 secondary
spacer
column 6 trailing
"Order Management Agent" 13 500 white
"Gmail + Shopify" 11 400 white/0.55
row 8
ground raised capsule, line white/0.115
padded 10 7
"Checked order status" 11 700 secondary
ground raised capsule, line white/0.115
padded 10 7
"Matched support history" 11 700 secondary
ground raised capsule, line white/0.115
padded 10 7
"Drafted replies" 11 700 secondary
ground raised capsule, line white/0.115
padded 10 7
"Holding send" 11 700 secondary
row 8
spacer
ground white/0.08 round 7, line white/0.115
button 28 high
inset 12 0
"Pause" 13 500 white
ground control round 7
button 28 high
inset 12 0
"Approve" 13 600 black
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 16
column 8
"Book two consultation callbacks" 16 600 white
row 8
ground slate/0.14 capsule, line slate/0.18
padded 9 5
"Paused" 11 700 slate
ground clay/0.14 capsule, line clay/0.18
padded 9 5
"Calendar" 11 700 clay
row 16 top
"Both callers confirmed preferred windows and contact details." 13 400 secondary
spacer
column 6 trailing
"Voice Scheduling Agent" 13 500 white
"Phone" 11 400 white/0.55
row 8
ground raised capsule, line white/0.115
padded 10 7
"Logged call" 11 700 secondary
ground raised capsule, line white/0.115
padded 10 7
"Checked calendar" 11 700 secondary
ground raised capsule, line white/0.115
padded 10 7
"Prepared invites" 11 700 secondary
ground raised capsule, line white/0.115
padded 10 7
"Holding booking" 11 700 secondary
row 8
spacer
ground white/0.05 round 7, line white/0.058
button 28 high
inset 12 0
"Pause" 13 500 white/0.5
ground white/0.05 round 7, line white/0.058
button 28 high
inset 12 0
"Approve" 13 600 white/0.5
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 16
column 8
"Send three delayed order replies" 16 600 white
row 8
ground green/0.14 capsule, line green/0.18
padded 9 5
"Approved" 11 700 green
ground clay/0.14 capsule, line clay/0.18
padded 9 5
"Customer-facing" 11 700 clay
row 16 top
"Customer messages include updated delivery windows and a soft apology." 13 400 secondary
spacer
column 6 trailing
"Order Management Agent" 13 500 white
"Gmail + Shopify" 11 400 white/0.55
row 8
spacer
ground white/0.05 round 7, line white/0.058
button 28 high
inset 12 0
"Pause" 13 500 white/0.5
ground white/0.05 round 7, line white/0.058
button 28 high
inset 12 0
"Approve" 13 600 white/0.5
)",
                            store);
}

TEST_F(LookTest, TheConnectors) {
  expectLook<ConnectorsView>(1000, R"(
column 22
column 8
"CONNECTORS" 11 900 green
"Real context from working apps" 34 700 white
"Quorvel's helper agents can work from messages, files, calendars, stores, payments, finance, ads, and browser context." 13 400 secondary
form row 14
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 16
row 8
ground clay/0.14 round 10
*envelope.fill 20 600 clay
spacer
ground green/0.14 capsule, line green/0.18
padded 9 5
"Connected" 11 700 green
column 5
"Gmail" 16 600 white
"Messages" 13 400 secondary
row 8
"2 min ago" 11 400 white/0.55
spacer
ground green capsule
switch
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 16
row 8
ground blue/0.14 round 10
*creditcard.fill 20 600 blue
spacer
ground slate/0.14 capsule, line slate/0.18
padded 9 5
"Off" 11 700 slate
column 5
"Stripe" 16 600 white
"Payments" 13 400 secondary
row 8
"Not connected" 11 400 white/0.55
spacer
ground white/0.36 capsule
switch
)",
                             store);
}

TEST_F(LookTest, TheBrowserWorkspace) {
  expectLook<BrowserWorkspaceView>(1000, R"(
column 22
column 8
"BROWSER WORKSPACE" 11 900 green
"Page context beside the agent" 34 700 white
"The desktop app keeps the viewed page, agent notes, screenshots, and approval state in the same workspace." 13 400 secondary
row 18 top
ground panel round 10, line white/0.115 round 10
column 0
ground raised/0.85 round 10
padded 12
row 8
ground 1:0.231:0.188/0.72 capsule
ground 1:0.8:0/0.82 capsule
ground 0.204:0.78:0.349/0.72 capsule
ground black/0.045 capsule
padded 0 7
"mail.example.com" 11 500 white/0.55
row 0
ground black/0.035 round 10
padded 14
column 12
"Gmail" 14 700 white
ground green/0.12 capsule
padded 10 7
row 8
"Inbox" 11 600 white
spacer
"1,323" 11 600 white
padded 10 7
row 8
"Starred" 11 600 white
spacer
padded 10 7
row 8
"Sent" 11 600 white
spacer
padded 10 7
row 8
"Drafts" 11 600 white
spacer
"8" 11 600 white
spacer
padded 14
column 10
ground black/0.045 capsule
padded 10
"Search mail" 13 400 white/0.55
ground gold/0.1 round 10
padded 11
row 10
ground gold capsule
column 2
"Customer Desk" 11 700 white
"Order update request" 13 500 white
"Can you confirm when this will arrive?" 11 400 white/0.55
spacer
ground black/0.025 round 10
padded 11
row 10
ground black/0.16 capsule
column 2
"Storefront Orders" 11 700 white
"New storefront sale" 13 500 white
"Review fulfillment by Jun 9." 11 400 white/0.55
spacer
ground black/0.025 round 10
padded 11
row 10
ground black/0.16 capsule
column 2
"Weekly campaign report" 11 700 white
"Retargeting audiences" 13 500 white
"Ready for review." 11 400 white/0.55
spacer
ground black/0.025 round 10
padded 11
row 10
ground black/0.16 capsule
column 2
"Invoice exception" 11 700 white
"Past due invoices" 13 500 white
"Three invoices moved past due." 11 400 white/0.55
spacer
spacer
ground green/0.1 round 10
padded 14
column 8
"Held draft" 11 900 green
"Thanks for checking in. I confirmed the fulfillment note and the updated delivery window is ready below." 13 400 white
column 18
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 10
ground blue/0.14 capsule, line blue/0.18
padded 9 5
"Observed page" 11 700 blue
"Gmail customer thread" 16 600 white
"Order update request is selected and source context is visible." 13 400 secondary
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 10
ground green/0.14 capsule, line green/0.18
padded 9 5
"Assigned helper" 11 700 green
"Order Management Agent" 16 600 white
"Draft reply is held because the action is customer-facing." 13 400 secondary
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 10
ground gold/0.14 capsule, line gold/0.18
padded 9 5
"Approval" 11 700 gold
"Required" 16 600 white
"Nothing sends until the owner approves the reply batch." 13 400 secondary
)");
}

TEST_F(LookTest, TheTrustControls) {
  expectLook<SecurityView>(1000, R"(
column 22
column 8
"TRUST CONTROLS" 11 900 green
"Visible work, explicit approval" 34 700 white
"Quorvel separates normal drafting from sensitive actions and records the source context used by helper agents." 13 400 secondary
row 18 top
column 14
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
row 14
ground gold/0.14 round 10
*lock.shield.fill 20 600 gold
column 4
"Ad spend changes" 14 700 white
"Budget moves and campaign edits" 13 400 secondary
spacer
ground green capsule
switch
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
row 14
ground green/0.14 round 10
*lock.shield.fill 20 600 green
column 4
"Customer-facing messages" 14 700 white
"Email, chat, SMS, and support replies" 13 400 secondary
spacer
ground green capsule
switch
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
row 14
ground blue/0.14 round 10
*lock.shield.fill 20 600 blue
column 4
"Calendar bookings" 14 700 white
"Appointments and callback holds" 13 400 secondary
spacer
ground green capsule
switch
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
row 14
ground slate/0.14 round 10
*lock.shield.fill 20 600 slate
column 4
"Activity history" 14 700 white
"Saved notes, drafts, and decision events" 13 400 secondary
spacer
ground green capsule
switch
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 16
"Current approval profile" 16 600 white
form column 16
padded 0 8
row 12 top
*lock.fill 17 400 gold
column 3
"Send three delayed order replies" 13 600 white
"Customer-facing" 11 400 white/0.55
spacer
ground gold/0.14 capsule, line gold/0.18
padded 9 5
"Needs review" 11 700 gold
padded 0 8
row 12 top
*lock.fill 17 400 slate
column 3
"Book two consultation callbacks" 13 600 white
"Calendar" 11 400 white/0.55
spacer
ground slate/0.14 capsule, line slate/0.18
padded 9 5
"Paused" 11 700 slate
padded 0 8
row 12 top
*checkmark.circle.fill 17 400 green
column 3
"Send three delayed order replies" 13 600 white
"Customer-facing" 11 400 white/0.55
spacer
ground green/0.14 capsule, line green/0.18
padded 9 5
"Approved" 11 700 green
)",
                           store, preferences);
}

TEST_F(LookTest, ThePlans) {
  expectLook<PricingView>(1000, R"(
column 22
column 8
"PLANS" 11 900 green
"From one person to managed rollout" 34 700 white
"The desktop app mirrors the public Quorvel packaging: start small, add helpers, then add managed setup for teams." 13 400 secondary
form row 14
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 16
row 8
"Free" 16 600 white
spacer
"$0" 34 600 rounded slate
"Try one personal or business task." 13 400 secondary
ground white/0.115
column 9
row 8
*checkmark.circle.fill 17 400 slate
"20 model turns" 11 400 white
row 8
*checkmark.circle.fill 17 400 slate
"Main agent chat" 11 400 white
row 8
*checkmark.circle.fill 17 400 slate
"One saved space" 11 400 white
ground white/0.08 round 7, line white/0.115
button 28 high
inset 12 0
"Select Plan" 13 500 white
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 16
row 8
"Starter" 16 600 white
spacer
ground blue/0.14 capsule, line blue/0.18
padded 9 5
"Individual" 11 700 blue
"$20/mo" 34 600 rounded blue
"One always-on AI agent for planning, writing, review, and follow-up." 13 400 secondary
ground white/0.115
column 9
row 8
*checkmark.circle.fill 17 400 blue
"2,000 model turns" 11 400 white
row 8
*checkmark.circle.fill 17 400 blue
"Helper agent checklists" 11 400 white
row 8
*checkmark.circle.fill 17 400 blue
"Files, drafts, and memory" 11 400 white
ground control round 7
button 28 high
inset 12 0
"Choose Starter" 13 600 black
row 14 top
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 12
ground green capsule
"Quorvel" 14 700 white
"Always-on agents, connected apps, browser context, phone/message access, and approvals." 13 400 secondary
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 12
ground slate capsule
"General AI chat" 14 700 white
"Useful responses, but follow-up, routing, app context, and approval tracking stay manual." 13 400 secondary
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
padded 18
column 12
ground blue capsule
"Developer tools" 14 700 white
"Strong for software work, while Quorvel focuses on operations, customers, ads, orders, and finance." 13 400 secondary
)",
                          store);
}

/// How large the small shapes of a view are, each size once: "dot 9 by 9".
template <class View, class... Arguments>
std::set<std::string> shapes(Arguments&... arguments) {
  auto* view = Gtk::make_managed<View>(arguments...);
  TestWindow window(*view, 900);
  std::set<std::string> found;
  for (auto* widget : all<Gtk::Widget>(*view))
    for (const char* shape :
         {"dot", "activity-bar", "soft-tile", "soft-circle", "window-button", "browser-message-dot"})
      if (widget->has_css_class(shape) && widget->get_mapped())
        found.insert(std::string(shape) + " " + std::to_string(widget->get_width()) + " by " +
                     std::to_string(widget->get_height()));
  return found;
}

TEST_F(LookTest, DotsTilesAndBarsHaveTheirSizes) {
  using ::testing::ElementsAre;
  EXPECT_THAT(shapes<SidebarView>(store), ElementsAre("dot 9 by 9"));
  EXPECT_THAT(shapes<InspectorPanel>(store), ElementsAre("dot 8 by 8", "soft-circle 24 by 24"));
  EXPECT_THAT(shapes<OverviewView>(store), ElementsAre("activity-bar 7 by 28", "dot 10 by 10"));
  EXPECT_THAT(shapes<AgentsView>(store), ElementsAre("soft-circle 42 by 42"));
  EXPECT_THAT(shapes<ConnectorsView>(store), ElementsAre("soft-tile 38 by 38"));
  EXPECT_THAT(shapes<BrowserWorkspaceView>(),
              ElementsAre("browser-message-dot 9 by 9", "window-button 11 by 11"));
  EXPECT_THAT(shapes<SecurityView>(store, preferences), ElementsAre("soft-tile 42 by 42"));
  EXPECT_THAT(shapes<PricingView>(store), ElementsAre("dot 12 by 12"));
}

TEST_F(LookTest, ABarOfProgressIsFourPointsHigh) {
  auto* view = Gtk::make_managed<RequestsView>(store);
  TestWindow window(*view, 900);
  auto* trough = all<Gtk::ProgressBar>(*view).front()->get_first_child();
  EXPECT_EQ(trough->get_height(), 4);
  EXPECT_EQ(trough->get_first_child()->get_height(), 4);
}

TEST_F(LookTest, InANarrowColumnTheCommandCentresMarkIsSmallerAndItsCardsStandBelowEachOther) {
  auto* view = Gtk::make_managed<OverviewView>(store);
  TestWindow window(*view, 560);
  const auto look = lookOf(*view);
  EXPECT_THAT(look, ::testing::HasSubstr("\nform row 8\n"));
  EXPECT_THAT(look,
              ::testing::HasSubstr("\nspacer\nshadow blue/0.16 0 7.4 17.76, ground control round 17.76, "
                                   "line white/0.16 round 17.76\n"));
  EXPECT_THAT(look, ::testing::HasSubstr("\nform column 18\n"));
}

} // namespace
} // namespace quorvel
