#include "support/TurkishLanguage.h"
#include "workspace/WorkspaceStore.h"

#include <functional>
#include <gmock/gmock.h>
#include <set>

namespace quorvel {
namespace {

using ::testing::ElementsAre;
using ::testing::MatchesRegex;
using ::testing::StartsWith;

struct WorkspaceStoreTest : ::testing::Test {
  WorkspaceStore store;
  int announcements = 0;

  WorkspaceStoreTest() {
    store.objectWillChange().connect([this] { ++announcements; });
  }

  /// What an observer that reads the store during each announcement of `action` sees.
  template <class Read>
  auto seenWhileAnnouncing(Read read, const std::function<void()>& action) {
    std::vector<decltype(read())> seen;
    auto connection = store.objectWillChange().connect([&] { seen.push_back(read()); });
    action();
    connection.disconnect();
    return seen;
  }

  void expectUntouched() {
    const WorkspaceStore fresh;
    EXPECT_EQ(announcements, 0);
    EXPECT_EQ(*store.selectedSection, *fresh.selectedSection);
    EXPECT_EQ(*store.requests, *fresh.requests);
    EXPECT_EQ(*store.approvals, *fresh.approvals);
    EXPECT_EQ(*store.connectors, *fresh.connectors);
    EXPECT_EQ(*store.activity, *fresh.activity);
  }

  ConnectorItem connector(std::size_t index) { return (*store.connectors)[index]; }
};

/// Letters of a random UUID: version 4, variant 8 to B, capitals.
const auto isNewId = MatchesRegex("[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}");

TEST_F(WorkspaceStoreTest, StartsFromTheSampleWorkspace) {
  EXPECT_EQ(*store.selectedSection, WorkspaceSection::overview);
  EXPECT_EQ(*store.searchText, "");
  EXPECT_EQ(*store.agents, SampleData::agents());
  EXPECT_EQ(*store.requests, SampleData::requests());
  EXPECT_EQ(*store.approvals, SampleData::approvals());
  EXPECT_EQ(*store.connectors, SampleData::connectors());
  EXPECT_EQ(*store.activity, SampleData::activity());
  EXPECT_EQ(*store.plans, SampleData::plans());
}

TEST_F(WorkspaceStoreTest, CountsTwoPendingSevenConnectedThreeActiveAndFourDraftingAtTheStart) {
  EXPECT_EQ(store.pendingApprovalCount(), 2) << "the third gate is paused";
  EXPECT_EQ(store.connectedCount(), 7) << "Stripe, Slack and Notion are not connected";
  EXPECT_EQ(store.activeRequestCount(), 3) << "the fourth request is complete";
  EXPECT_EQ(store.draftingCount(), 4) << "one active and three drafting agents";
}

TEST_F(WorkspaceStoreTest, CountsFollowTheLists) {
  store.agents.update([](auto& list) { list[0].load = AgentLoad::idle; });
  store.requests.update([](auto& list) { list[3].status = RequestStatus::waiting; });
  store.approvals = {};
  store.connectors.update([](auto& list) { list.pop_front(); });
  EXPECT_EQ(store.draftingCount(), 3);
  EXPECT_EQ(store.activeRequestCount(), 4);
  EXPECT_EQ(store.pendingApprovalCount(), 0);
  EXPECT_EQ(store.connectedCount(), 6);
}

TEST_F(WorkspaceStoreTest, ASecondStoreStartsAfresh) {
  store.createRequest();
  store.approveFirstPending();
  const WorkspaceStore second;
  EXPECT_EQ(*second.requests, SampleData::requests());
  EXPECT_EQ(second.pendingApprovalCount(), 2);
}

TEST_F(WorkspaceStoreTest, CreatingARequestPutsItInFrontLogsItAndTurnsToTheRequests) {
  store.createRequest();

  const RequestItem request = store.requests->front();
  EXPECT_THAT(request.id, isNewId);
  const RequestItem expected{request.id,
                             "New workspace request",
                             "Main Agent",
                             "Desktop",
                             RequestStatus::routed,
                             "Capture the request, choose the helper agent, and prepare the first draft.",
                             0.18,
                             "Just now"};
  EXPECT_EQ(request, expected);

  const ActivityItem entry = store.activity->front();
  EXPECT_THAT(entry.id, isNewId);
  EXPECT_NE(entry.id, request.id);
  const ActivityItem expectedEntry{entry.id, "Request created",
                                   "Main Agent is routing a fresh desktop request.", "Now", AccentTone::blue};
  EXPECT_EQ(entry, expectedEntry);
  EXPECT_EQ(*store.selectedSection, WorkspaceSection::requests);
}

TEST_F(WorkspaceStoreTest, TwoCreatedRequestsStandOnTopInReverseOrder) {
  store.createRequest();
  const auto first = store.requests->front();
  store.createRequest();
  EXPECT_EQ((*store.requests)[1], first);
  EXPECT_NE(store.requests->front(), first);
  EXPECT_EQ((*store.requests)[2], SampleData::requests().front());
  EXPECT_EQ((*store.activity)[0].title, "Request created");
  EXPECT_EQ((*store.activity)[1].title, "Request created");
  EXPECT_EQ((*store.activity)[2], SampleData::activity().front());
  EXPECT_EQ(*store.selectedSection, WorkspaceSection::requests);
  EXPECT_EQ(store.activeRequestCount(), 5);
}

TEST_F(WorkspaceStoreTest, CreatingARequestAnnouncesThreeTimesTheRequestTheEntryAndTheSection) {
  using Seen = std::tuple<std::size_t, std::size_t, WorkspaceSection>;
  const auto read = [this] {
    return Seen(store.requests->size(), store.activity->size(), store.selectedSection);
  };
  EXPECT_THAT(seenWhileAnnouncing(read, [this] { store.createRequest(); }),
              ElementsAre(Seen(4, 4, WorkspaceSection::overview), Seen(5, 4, WorkspaceSection::overview),
                          Seen(5, 5, WorkspaceSection::overview)));
}

TEST_F(WorkspaceStoreTest, ApprovingChangesTheStateInPlaceAndNamesTheAgent) {
  store.approve((*store.approvals)[1]);
  auto expected = SampleData::approvals();
  expected[1].state = ApprovalState::approved;
  EXPECT_EQ(*store.approvals, expected);

  const ActivityItem entry = store.activity->front();
  EXPECT_THAT(entry.id, isNewId);
  const ActivityItem expectedEntry{
      entry.id, "Approval granted",
      "Ads Agent can continue with shift $240 from broad audience to retargeting.", "Now", AccentTone::green};
  EXPECT_EQ(entry, expectedEntry);
  EXPECT_EQ(store.pendingApprovalCount(), 1);
  EXPECT_EQ(*store.selectedSection, WorkspaceSection::overview);
}

TEST_F(WorkspaceStoreTest, PausingChangesTheStateInPlaceAndKeepsTheTitleAsItStands) {
  store.pause(store.approvals->front());
  auto expected = SampleData::approvals();
  expected[0].state = ApprovalState::paused;
  EXPECT_EQ(*store.approvals, expected);

  const ActivityItem entry = store.activity->front();
  EXPECT_THAT(entry.id, isNewId);
  const ActivityItem expectedEntry{entry.id, "Approval paused",
                                   "Send three delayed order replies is waiting for more context.", "Now",
                                   AccentTone::slate};
  EXPECT_EQ(entry, expectedEntry);
}

TEST_F(WorkspaceStoreTest, ApprovingAndPausingAnnounceTwiceTheStateAndTheEntry) {
  using Seen = std::pair<ApprovalState, std::size_t>;
  const auto read = [this] { return Seen(store.approvals->front().state, store.activity->size()); };
  EXPECT_THAT(seenWhileAnnouncing(read, [this] { store.approve(store.approvals->front()); }),
              ElementsAre(Seen(ApprovalState::waiting, 4), Seen(ApprovalState::approved, 4)));
  EXPECT_THAT(seenWhileAnnouncing(read, [this] { store.pause(store.approvals->front()); }),
              ElementsAre(Seen(ApprovalState::approved, 5), Seen(ApprovalState::paused, 5)));
}

TEST_F(WorkspaceStoreTest, ApprovingWhatIsApprovedOrPausedApprovesAndLogsAgain) {
  const auto gate = store.approvals->back();
  store.approve(gate);
  store.approve(gate);
  EXPECT_EQ(store.approvals->back().state, ApprovalState::approved);
  EXPECT_EQ(store.activity->size(), 6u);
  EXPECT_EQ((*store.activity)[0].title, "Approval granted");
  EXPECT_EQ((*store.activity)[1].title, "Approval granted");
  EXPECT_NE((*store.activity)[0].id, (*store.activity)[1].id);
}

TEST_F(WorkspaceStoreTest, PausingWhatIsPausedOrApprovedPausesAndLogsAgain) {
  const auto gate = store.approvals->front();
  store.approve(gate);
  store.pause(gate);
  store.pause(gate);
  EXPECT_EQ(store.approvals->front().state, ApprovalState::paused);
  EXPECT_EQ(store.activity->size(), 7u);
  EXPECT_EQ((*store.activity)[0].title, "Approval paused");
  EXPECT_EQ((*store.activity)[1].title, "Approval paused");
}

TEST_F(WorkspaceStoreTest, TheEntryTellsOfTheRecordThatWasPassedNotOfTheStoredOne) {
  auto passed = store.approvals->front();
  passed.agent = "Another Agent";
  passed.title = "Another Title";
  store.approve(passed);
  EXPECT_EQ(store.activity->front().detail, "Another Agent can continue with another title.");
  EXPECT_EQ(store.approvals->front().title, "Send three delayed order replies") << "only the state changes";
}

TEST_F(WorkspaceStoreTest, ATitleIsLowerCasedInEveryScriptAndTheAgentKeepsItsCase) {
  auto passed = store.approvals->front();
  passed.agent = "Ärger Agent";
  passed.title = "ÄRGER MIT ÉTÉ, ЖУРНАЛ, ΑΒΓ, 東京 & STRASSE İ";
  store.approve(passed);
  EXPECT_THAT(store.activity->front().detail,
              StartsWith("Ärger Agent can continue with ärger mit été, журнал, αβγ, 東京 & strasse i"));
}

TEST_F(WorkspaceStoreTest, TheLoweredTitleIsTheSameInEveryLanguage) {
  const tests::TurkishLanguage language;
  auto approval = store.approvals->front();
  approval.title = "SEND IN INK";
  store.approve(approval);
  EXPECT_THAT(store.activity->front().detail, ::testing::EndsWith(" can continue with send in ink."));
}

TEST_F(WorkspaceStoreTest, ATitleThatIsNoTextStillGivesAnEntry) {
  auto passed = store.approvals->front();
  passed.title = "BROKEN \xff\xc3";
  store.approve(passed);
  EXPECT_THAT(store.activity->front().detail, StartsWith("Order Management Agent can continue with broken "));
}

TEST_F(WorkspaceStoreTest, ApprovingAnUnknownIdChangesNothingAndLogsNothing) {
  auto stranger = store.approvals->front();
  stranger.id = "approval-unknown";
  store.approve(stranger);
  expectUntouched();
}

TEST_F(WorkspaceStoreTest, PausingAnUnknownIdChangesNothingAndLogsNothing) {
  auto stranger = store.approvals->front();
  stranger.id = "";
  store.pause(stranger);
  expectUntouched();
}

TEST_F(WorkspaceStoreTest, OfTwoGatesWithOneIdTheFirstIsApproved) {
  store.approvals.update([](auto& list) { list[1].id = list[0].id; });
  store.approve((*store.approvals)[1]);
  EXPECT_EQ((*store.approvals)[0].state, ApprovalState::approved);
  EXPECT_EQ((*store.approvals)[1].state, ApprovalState::waiting);
}

TEST_F(WorkspaceStoreTest, ApproveFirstPendingApprovesTheFirstRowAndLogsItInLowerCase) {
  store.approveFirstPending();
  EXPECT_EQ(store.approvals->front().state, ApprovalState::approved);
  EXPECT_EQ(store.activity->front().detail,
            "Order Management Agent can continue with send three delayed order replies.");
}

TEST_F(WorkspaceStoreTest, ApproveFirstPendingPassesOverGatesThatDoNotWait) {
  store.pause(store.approvals->front());
  store.approveFirstPending();
  EXPECT_EQ((*store.approvals)[0].state, ApprovalState::paused);
  EXPECT_EQ((*store.approvals)[1].state, ApprovalState::approved);
}

TEST_F(WorkspaceStoreTest, ApproveFirstPendingWhenNoGateIsWaitingChangesNothing) {
  store.approveFirstPending();
  store.approveFirstPending();
  const auto approvals = *store.approvals;
  const auto activity = *store.activity;
  announcements = 0;
  store.approveFirstPending();
  EXPECT_EQ(announcements, 0);
  EXPECT_EQ(*store.approvals, approvals);
  EXPECT_EQ(*store.activity, activity);
}

TEST_F(WorkspaceStoreTest, TogglingAConnectedConnectorDisconnectsItAndASecondTimeSaysJustNow) {
  const auto gmail = connector(0);
  ASSERT_EQ(gmail.lastSync, "2 min ago");

  auto expected = gmail;
  expected.isConnected = false;
  expected.lastSync = "Disconnected";
  store.toggleConnector(gmail);
  EXPECT_EQ(connector(0), expected) << "the tone and all else stay";

  expected.isConnected = true;
  expected.lastSync = "Just now";
  store.toggleConnector(gmail);
  EXPECT_EQ(connector(0), expected) << "the previous text is not restored";
}

TEST_F(WorkspaceStoreTest, AConnectorSwitchedOffSaysDisconnectedNotNotConnected) {
  const auto slack = connector(7);
  ASSERT_EQ(slack.lastSync, "Not connected");
  store.toggleConnector(slack);
  EXPECT_EQ(connector(7).lastSync, "Just now");
  EXPECT_EQ(store.connectedCount(), 8);
  store.toggleConnector(slack);
  EXPECT_EQ(connector(7).lastSync, "Disconnected");
  EXPECT_EQ(store.connectedCount(), 7);
}

TEST_F(WorkspaceStoreTest, TogglingAConnectorAnnouncesTwiceAndLogsNothing) {
  using Seen = std::pair<bool, std::string>;
  const auto read = [this] { return Seen(connector(0).isConnected, connector(0).lastSync); };
  EXPECT_THAT(seenWhileAnnouncing(read, [this] { store.toggleConnector(connector(0)); }),
              ElementsAre(Seen(true, "2 min ago"), Seen(false, "2 min ago")));
  EXPECT_EQ(*store.activity, SampleData::activity());
}

TEST_F(WorkspaceStoreTest, TogglingAnUnknownConnectorDoesNothing) {
  auto stranger = connector(0);
  stranger.id = "unknown";
  store.toggleConnector(stranger);
  expectUntouched();
}

TEST_F(WorkspaceStoreTest, EveryAssignmentIsAnnouncedAlsoOneThatChangesNothing) {
  store.selectedSection = WorkspaceSection::overview;
  store.searchText = "";
  store.agents = SampleData::agents();
  store.plans = SampleData::plans();
  store.agents.update([](auto& list) { list[0].load = AgentLoad::active; });
  EXPECT_EQ(announcements, 5);
}

TEST_F(WorkspaceStoreTest, TenThousandRequestsAreAllThereAndCounted) {
  for (int i = 0; i < 10'000; ++i)
    store.createRequest();
  EXPECT_EQ(announcements, 30'000);
  EXPECT_EQ(store.requests->size(), 10'004u);
  EXPECT_EQ(store.activity->size(), 10'004u);
  EXPECT_EQ(store.activeRequestCount(), 10'003);
  EXPECT_EQ(store.requests->back(), SampleData::requests().back());
  EXPECT_EQ(store.activity->back(), SampleData::activity().back());

  std::set<std::string> ids;
  for (const auto& request : *store.requests)
    ids.insert(request.id);
  for (const auto& entry : *store.activity)
    ids.insert(entry.id);
  EXPECT_EQ(ids.size(), 20'008u);
}

} // namespace
} // namespace quorvel
