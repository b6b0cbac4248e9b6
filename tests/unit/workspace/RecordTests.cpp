#include "workspace/SampleData.h"

#include <gmock/gmock.h>
#include <unordered_set>

namespace quorvel {
namespace {

void change(std::string& text) {
  text += " changed";
}
void change(std::vector<std::string>& texts) {
  texts.back() += " changed";
}
void change(bool& flag) {
  flag = !flag;
}
void change(double& number) {
  number += 0.01;
}
template <class Enumeration>
void change(Enumeration& value) {
  value = value == allCases<Enumeration>().front() ? allCases<Enumeration>().back()
                                                   : allCases<Enumeration>().front();
}

template <Record Type>
std::size_t hashOf(const Type& record) {
  return std::hash<Type>{}(record);
}

template <Record Type>
void expectDifferent(const Type& one, const Type& other) {
  EXPECT_FALSE(one == other);
  EXPECT_TRUE(one != other);
  EXPECT_NE(hashOf(one), hashOf(other));
}

/// Checks that `members`, the fields in declaration order, are all the record has and all count.
template <Record Type, class... Members>
void expectEveryFieldCounts(const Type& record, Members... members) {
  EXPECT_EQ(Type(record), record);
  EXPECT_EQ(hashOf(Type(record)), hashOf(record));
  EXPECT_EQ(record.fields(), std::tie(record.*members...)) << "fields in another order, or not all of them";

  const auto expectToCount = [&record](auto member) {
    Type other = record;
    change(other.*member);
    expectDifferent(record, other);
  };
  (expectToCount(members), ...);
}

TEST(Records, AnAgentIsItsNineFields) {
  using Agent = AgentProfile;
  for (const auto& agent : SampleData::agents())
    expectEveryFieldCounts(agent, &Agent::id, &Agent::name, &Agent::shortName, &Agent::focus,
                           &Agent::currentWork, &Agent::output, &Agent::load, &Agent::tone, &Agent::signal);
}

TEST(Records, ARequestIsItsEightFields) {
  using Request = RequestItem;
  for (const auto& request : SampleData::requests())
    expectEveryFieldCounts(request, &Request::id, &Request::title, &Request::agent, &Request::source,
                           &Request::status, &Request::summary, &Request::progress, &Request::lastUpdated);
}

TEST(Records, AnApprovalIsItsEightFields) {
  using Approval = ApprovalItem;
  for (const auto& approval : SampleData::approvals())
    expectEveryFieldCounts(approval, &Approval::id, &Approval::title, &Approval::agent, &Approval::source,
                           &Approval::summary, &Approval::risk, &Approval::steps, &Approval::state);
}

TEST(Records, AConnectorIsItsSevenFields) {
  using Connector = ConnectorItem;
  for (const auto& connector : SampleData::connectors())
    expectEveryFieldCounts(connector, &Connector::id, &Connector::name, &Connector::category,
                           &Connector::symbol, &Connector::isConnected, &Connector::lastSync,
                           &Connector::tone);
}

TEST(Records, AnActivityIsItsFiveFields) {
  using Activity = ActivityItem;
  for (const auto& entry : SampleData::activity())
    expectEveryFieldCounts(entry, &Activity::id, &Activity::title, &Activity::detail, &Activity::timestamp,
                           &Activity::tone);
}

TEST(Records, APlanIsItsSevenFields) {
  using Plan = PricingPlan;
  for (const auto& plan : SampleData::plans())
    expectEveryFieldCounts(plan, &Plan::id, &Plan::name, &Plan::price, &Plan::audience, &Plan::included,
                           &Plan::isFeatured, &Plan::tone);
}

TEST(Records, TheSameTextInAnotherFieldIsAnotherRecord) {
  const ActivityItem one{"1", "a", "b", "Now", AccentTone::blue};
  const ActivityItem other{"1", "b", "a", "Now", AccentTone::blue};
  expectDifferent(one, other);
}

TEST(Records, TheOrderAndTheNumberOfListEntriesCount) {
  const PricingPlan plan{"1", "Plan", "$1", "All", {"a", "b"}, false, AccentTone::gold};
  for (const std::vector<std::string>& included :
       {std::vector<std::string>{"b", "a"}, {"a"}, {"a", "b", ""}, {"ab"}, {}}) {
    PricingPlan other = plan;
    other.included = included;
    expectDifferent(plan, other);
  }
}

TEST(Records, EqualRecordsAreOneInASet) {
  const std::unordered_set<RequestItem> set(SampleData::requests().begin(), SampleData::requests().end());
  EXPECT_EQ(set.size(), 4u);
  EXPECT_TRUE(set.contains(SampleData::requests().back()));
}

} // namespace
} // namespace quorvel
