#include "console/SidebarView.h"

#include "brand/NavigationRow.h"
#include "brand/sidebar.h"
#include "brand/surfaces.h"
#include "brand/tone.h"
#include "console/RecordRows.h"
#include "layout/WidgetPer.h"
#include "layout/scrollIntoView.h"
#include "observation/observe.h"

#include <optional>
#include <string>
#include <utility>

namespace quorvel {
namespace {

/// What the fade at an edge covers of the rows, in points.
constexpr int fadeHeight = 24;

/// A section with its count, if it has one. Its padding lies outside what can be pressed.
class SidebarRow : public NavigationRow {
 public:
  SidebarRow(WorkspaceSection section, Action action);
  void show(const std::optional<std::string>& badge, bool isSelected);

 private:
  WorkspaceSection section_;
  Gtk::Label* badge_;
  Gtk::Widget* capsule_;
};

SidebarRow::SidebarRow(WorkspaceSection section, Action action)
    : NavigationRow(std::string(title(section)), std::string(subtitle(section)), symbol(section),
                    Target::label, std::move(action)),
      section_(section), badge_(text("", {TextStyle::caption2, FontWeight::black})),
      capsule_(surface("sidebar-badge", padded(8, 4, badge_))) {
  addTrailing(capsule_);
}

void SidebarRow::show(const std::optional<std::string>& badge, bool isSelected) {
  setSelected(isSelected);
  setColor(*badge_, isSelected ? TextColor::black : TextColor::secondaryInk);
  badge_->set_text(badge.value_or(""));
  capsule_->set_visible(badge.has_value());
  const std::string detail(subtitle(section_));
  describe(badge ? detail + ", " + *badge : detail);
}

/// The sections, of which the selected one stands out.
class Sections : public VStack {
 public:
  explicit Sections(WorkspaceStore& store);

 private:
  void refresh();
  std::optional<std::string> badge(WorkspaceSection section) const;

  WorkspaceStore& store_;
  WidgetPer<WorkspaceSection, SidebarRow> rows_;
  WorkspaceSection selected_;
};

Sections::Sections(WorkspaceStore& store) : VStack(6), store_(store), selected_(store.selectedSection) {
  add({sidebarCaption("Workspace", 16)});
  for (const auto section : allCases<WorkspaceSection>()) {
    auto* row =
        Gtk::make_managed<SidebarRow>(section, [&store, section] { store.selectedSection = section; });
    rows_.emplace_back(section, row);
    add({row});
  }
  observe(store, *this, &Sections::refresh);
}

void Sections::refresh() {
  const auto before = std::exchange(selected_, *store_.selectedSection);
  for (const auto& [section, row] : rows_) {
    row->show(badge(section), section == selected_);
    if (section == selected_ && section != before)
      scrollIntoView(*row, fadeHeight);
  }
}

/// What waits for work is worth a badge only while there is some; how many apps are connected always is.
std::optional<std::string> Sections::badge(WorkspaceSection section) const {
  const auto unlessNone = [](int count) {
    return count > 0 ? std::optional(std::to_string(count)) : std::nullopt;
  };
  switch (section) {
  case WorkspaceSection::requests:
    return unlessNone(store_.activeRequestCount());
  case WorkspaceSection::approvals:
    return unlessNone(store_.pendingApprovalCount());
  case WorkspaceSection::connectors:
    return std::to_string(store_.connectedCount());
  default:
    return std::nullopt;
  }
}

class AgentSidebarRow : public HStack {
 public:
  explicit AgentSidebarRow(const AgentProfile& agent);
  void show(const AgentProfile& agent);

 private:
  Gtk::Widget* dot_;
  Gtk::Label* name_;
  Gtk::Label* load_;
};

AgentSidebarRow::AgentSidebarRow(const AgentProfile& agent)
    : HStack(0), dot_(dot(agent.tone, 9)),
      name_(text("", {TextStyle::callout, FontWeight::bold, TextColor::secondaryInk})),
      load_(text("", {TextStyle::caption, FontWeight::semibold, TextColor::muted})) {
  add({padded(12, 8, hstack(10, {dot_, vstack(1, {name_, load_})}))});
  show(agent);
}

void AgentSidebarRow::show(const AgentProfile& agent) {
  setTone(*dot_, agent.tone);
  name_->set_text(agent.shortName);
  load_->set_text(std::string(rawValue(agent.load)));
}

Gtk::Widget* activeAgents(WorkspaceStore& store) {
  return vstack(6, {sidebarCaption("Active agents", 16),
                    recordRows<VStack>(store, firstOf(store.agents, 5), made<AgentSidebarRow>, 6)});
}

Gtk::Widget* header() {
  constexpr TextLook name{TextStyle::title3, FontWeight::semibold, TextColor::ink};
  return padded(18, 0, sidebarHeader({38, name, "Agent workspace"}));
}

Gtk::Widget* liveMonitorCard() {
  return padded(4, 0,
                sidebarStatusCard("LIVE MONITOR", "Live", "Order Agent is holding 3 customer replies."));
}

Gtk::Widget* body(WorkspaceStore& store) {
  auto* blocks = vstack(22, {Gtk::make_managed<Sections>(store), activeAgents(store), liveMonitorCard()});
  auto* scroller = verticalScroller("Sidebar", padded({.trailing = 12, .bottom = 18, .leading = 12}, blocks));
  scroller->set_vexpand(true);
  return stretched(scroller);
}

} // namespace

SidebarView::SidebarView(WorkspaceStore& store) : VStack(0) {
  add_css_class("sidebar-view");
  auto* newChat = newChatButton(FontWeight::bold, [&store] { store.createRequest(); });
  add({padded({.top = 20},
              vstack(18, {header(), padded(18, 0, newChat), body(store)}, HorizontalAlignment::centre))});
}

} // namespace quorvel
