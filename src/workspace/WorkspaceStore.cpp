#include "workspace/WorkspaceStore.h"

#include "vocabulary/letterByLetter.h"

#include <algorithm>
#include <glib.h>
#include <glibmm/unicode.h>
#include <glibmm/ustring.h>

namespace quorvel {
namespace {

std::string newId() {
  char* const text = g_uuid_string_random();
  std::string id(text);
  g_free(text);
  std::ranges::transform(id, id.begin(), g_ascii_toupper);
  return id;
}

std::string lowercased(const std::string& text) {
  return letterByLetter(Glib::ustring(text).make_valid(), Glib::Unicode::tolower);
}

template <class List, class Condition>
int countWhere(const List& list, Condition condition) {
  return static_cast<int>(std::ranges::count_if(list, condition));
}

template <class Type>
std::optional<std::size_t> indexOf(const RecordList<Type>& list, const std::string& id) {
  const auto found = std::ranges::find(list, id, &Type::id);
  if (found == list.end())
    return std::nullopt;
  return static_cast<std::size_t>(found - list.begin());
}

template <class Type>
void putInFront(Published<RecordList<Type>>& list, Type record) {
  list.update([&record](auto& records) { records.push_front(std::move(record)); });
}

} // namespace

int WorkspaceStore::pendingApprovalCount() const {
  return countWhere(*approvals, [](const auto& item) { return item.state == ApprovalState::waiting; });
}

int WorkspaceStore::connectedCount() const {
  return countWhere(*connectors, [](const auto& item) { return item.isConnected; });
}

int WorkspaceStore::activeRequestCount() const {
  return countWhere(*requests, [](const auto& item) { return item.status != RequestStatus::complete; });
}

int WorkspaceStore::draftingCount() const {
  return countWhere(*agents, [](const auto& agent) {
    return agent.load == AgentLoad::drafting || agent.load == AgentLoad::active;
  });
}

void WorkspaceStore::createRequest() {
  putInFront(requests,
             {.id = newId(),
              .title = "New workspace request",
              .agent = "Main Agent",
              .source = "Desktop",
              .status = RequestStatus::routed,
              .summary = "Capture the request, choose the helper agent, and prepare the first draft.",
              .progress = 0.18,
              .lastUpdated = "Just now"});
  log("Request created", "Main Agent is routing a fresh desktop request.", AccentTone::blue);
  selectedSection = WorkspaceSection::requests;
}

void WorkspaceStore::approve(ApprovalItem item) {
  if (!setState(item.id, ApprovalState::approved))
    return;
  log("Approval granted", item.agent + " can continue with " + lowercased(item.title) + ".",
      AccentTone::green);
}

void WorkspaceStore::pause(ApprovalItem item) {
  if (!setState(item.id, ApprovalState::paused))
    return;
  log("Approval paused", item.title + " is waiting for more context.", AccentTone::slate);
}

void WorkspaceStore::approveFirstPending() {
  const auto pending = std::ranges::find(*approvals, ApprovalState::waiting, &ApprovalItem::state);
  if (pending != approvals->end())
    approve(*pending);
}

void WorkspaceStore::toggleConnector(ConnectorItem item) {
  const auto index = indexOf(*connectors, item.id);
  if (!index)
    return;
  connectors.update([&](auto& list) { list[*index].isConnected = !list[*index].isConnected; });
  connectors.update(
      [&](auto& list) { list[*index].lastSync = list[*index].isConnected ? "Just now" : "Disconnected"; });
}

bool WorkspaceStore::setState(const std::string& approvalId, ApprovalState state) {
  const auto index = indexOf(*approvals, approvalId);
  if (index)
    approvals.update([&](auto& list) { list[*index].state = state; });
  return index.has_value();
}

void WorkspaceStore::log(std::string title, std::string detail, AccentTone tone) {
  putInFront(activity, {.id = newId(),
                        .title = std::move(title),
                        .detail = std::move(detail),
                        .timestamp = "Now",
                        .tone = tone});
}

} // namespace quorvel
