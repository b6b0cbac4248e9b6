#include "console/SidebarView.h"

#include "brand/BrandMark.h"
#include "brand/StatusPill.h"
#include "brand/buttons.h"
#include "brand/symbol.h"
#include "brand/tone.h"
#include "layout/Frame.h"
#include "layout/KeyedRows.h"
#include "observation/observe.h"

#include <array>
#include <gtkmm/scrolledwindow.h>
#include <ranges>
#include <string>

namespace quorvel {
namespace {

constexpr int shownAgents = 5;

/// A section with its count, if it has one.
class SidebarRow : public HStack {
 public:
  SidebarRow(WorkspaceSection section, Action action);
  void show(const std::optional<std::string>& badge, bool isSelected);

 private:
  WorkspaceSection section_;
  Gtk::Image* icon_;
  Gtk::Label* title_;
  Gtk::Label* badge_;
  Gtk::Widget* capsule_;
  Gtk::Button* button_;
};

Gtk::Widget* capsuleAround(Gtk::Label* badge) {
  auto* capsule = hstack(0, {padded(8, 4, badge)});
  capsule->add_css_class("badge");
  return capsule;
}

SidebarRow::SidebarRow(WorkspaceSection section, Action action)
    : HStack(0), section_(section),
      icon_(symbol(quorvel::symbol(section), {TextStyle::body, FontWeight::semibold})),
      title_(text(std::string(title(section)), {TextStyle::body, FontWeight::bold})),
      badge_(text("", {TextStyle::caption2, FontWeight::black})), capsule_(capsuleAround(badge_)) {
  add_css_class("sidebar-row");
  auto* subtitle = text(std::string(quorvel::subtitle(section)),
                        {TextStyle::caption, FontWeight::semibold, TextColor::muted});
  auto* label =
      hstack(12, {framed({.width = 22}, icon_), vstack(2, {title_, subtitle}), hspacer(8), capsule_});
  button_ = button(label, ButtonStyle::plain, std::move(action));
  setAccessibleName(*button_, std::string(title(section)));
  add({padded(12, 10, stretched(button_))});
}

void SidebarRow::show(const std::optional<std::string>& badge, bool isSelected) {
  setColor(*icon_, isSelected ? TextColor::green : TextColor::muted);
  setColor(*title_, isSelected ? TextColor::ink : TextColor::secondaryInk);
  setColor(*badge_, isSelected ? TextColor::black : TextColor::secondaryInk);
  badge_->set_text(badge.value_or(""));
  capsule_->set_visible(badge.has_value());
  const std::string detail(quorvel::subtitle(section_));
  setAccessibleDescription(*button_, badge ? detail + ", " + *badge : detail);
  setAccessibleSelected(*button_, isSelected);
  if (isSelected)
    add_css_class("selected");
  else
    remove_css_class("selected");
}

/// The caption above a block of rows.
Gtk::Widget* blockCaption(const Glib::ustring& content) {
  return padded(16, 0, text(content, {TextStyle::caption, FontWeight::black, TextColor::muted}));
}

/// The sections, of which the selected one stands out.
class Sections : public VStack {
 public:
  explicit Sections(WorkspaceStore& store);

 private:
  void refresh();
  std::optional<std::string> badge(WorkspaceSection section) const;

  WorkspaceStore& store_;
  std::array<SidebarRow*, allCases<WorkspaceSection>().size()> rows_;
};

Sections::Sections(WorkspaceStore& store) : VStack(6), store_(store) {
  add({blockCaption("Workspace")});
  for (const auto section : allCases<WorkspaceSection>()) {
    auto* row =
        Gtk::make_managed<SidebarRow>(section, [&store, section] { store.selectedSection = section; });
    rows_[static_cast<std::size_t>(section)] = row;
    add({row});
  }
  observe(store, *this, &Sections::refresh);
}

void Sections::refresh() {
  for (const auto section : allCases<WorkspaceSection>())
    rows_[static_cast<std::size_t>(section)]->show(badge(section), store_.selectedSection == section);
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

/// The first few agents of the workspace.
class ActiveAgents : public VStack {
 public:
  explicit ActiveAgents(WorkspaceStore& store);

 private:
  void refresh() { rows_.show(*store_.agents | std::views::take(shownAgents)); }

  WorkspaceStore& store_;
  VStack* list_;
  KeyedRows<AgentProfile, AgentSidebarRow> rows_;
};

ActiveAgents::ActiveAgents(WorkspaceStore& store)
    : VStack(6), store_(store), list_(vstack(6, {})),
      rows_(*list_, [](const AgentProfile& agent) { return Gtk::make_managed<AgentSidebarRow>(agent); }) {
  add({blockCaption("Active agents"), list_});
  observe(store, *this, &ActiveAgents::refresh);
}

Gtk::Widget* header() {
  auto* name = vstack(
      2, {text("Quorvel", {TextStyle::title3, FontWeight::semibold, TextColor::ink}),
          text("Agent workspace", {TextStyle::caption, FontWeight::semibold, TextColor::secondaryInk})});
  return padded(18, 0, hstack(12, {Gtk::make_managed<BrandMark>(38), name, hspacer()}));
}

Gtk::Widget* newChatButton(WorkspaceStore& store) {
  auto* label = text("+ New chat", {TextStyle::headline, FontWeight::bold, TextColor::black});
  label->set_halign(Gtk::Align::CENTER);
  auto* result = button(padded(0, 13, label), ButtonStyle::plain, [&store] { store.createRequest(); });
  result->add_css_class("new-chat");
  setAccessibleName(*result, "+ New chat");
  return padded(18, 0, stretched(result));
}

Gtk::Widget* liveMonitorCard() {
  auto* heading =
      hstack(defaultSpacing, {text("LIVE MONITOR", {TextStyle::caption, FontWeight::black, TextColor::green}),
                              hspacer(), Gtk::make_managed<StatusPill>("Live", AccentTone::green, true)});
  auto* note = text("Order Agent is holding 3 customer replies.",
                    {TextStyle::caption, FontWeight::semibold, TextColor::secondaryInk});
  auto* card = vstack(0, {padded(14, stretched(vstack(8, {heading, note})))});
  card->add_css_class("panel-raised");
  card->add_css_class("strongly-outlined");
  return padded(4, 0, card);
}

Gtk::Widget* body(WorkspaceStore& store) {
  auto* blocks = vstack(
      22, {Gtk::make_managed<Sections>(store), Gtk::make_managed<ActiveAgents>(store), liveMonitorCard()});
  auto* scroller = Gtk::make_managed<Gtk::ScrolledWindow>();
  scroller->set_policy(Gtk::PolicyType::NEVER, Gtk::PolicyType::AUTOMATIC);
  scroller->set_child(*padded({.trailing = 12, .bottom = 18, .leading = 12}, blocks));
  scroller->set_hexpand(true);
  scroller->set_vexpand(true);
  return scroller;
}

} // namespace

SidebarView::SidebarView(WorkspaceStore& store) : VStack(0) {
  add_css_class("sidebar-view");
  add({padded({.top = 20},
              vstack(18, {header(), newChatButton(store), body(store)}, HorizontalAlignment::centre))});
}

} // namespace quorvel
