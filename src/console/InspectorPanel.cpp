#include "console/InspectorPanel.h"

#include "brand/StatusPill.h"
#include "brand/surfaces.h"
#include "brand/symbol.h"
#include "brand/tone.h"
#include "console/RecordRows.h"
#include "layout/Frame.h"
#include "layout/WidgetPer.h"
#include "observation/observe.h"

#include <array>
#include <string>

namespace quorvel {
namespace {

/// Names the section on screen.
class Header : public HStack {
 public:
  explicit Header(WorkspaceStore& store);

 private:
  void refresh();

  WorkspaceStore& store_;
  Gtk::Image* icon_;
  Gtk::Label* title_;
  Gtk::Label* subtitle_;
};

Header::Header(WorkspaceStore& store)
    : HStack(10), store_(store),
      icon_(symbol("", {TextStyle::title3, FontWeight::semibold, TextColor::green})),
      title_(text("", {TextStyle::headline})),
      subtitle_(text("", {TextStyle::caption, {}, TextColor::dimmed})) {
  add({icon_, vstack(2, {title_, subtitle_})});
  observe(store, *this, &Header::refresh);
}

void Header::refresh() {
  const WorkspaceSection section = store_.selectedSection;
  setSymbol(*icon_, symbol(section));
  title_->set_text(std::string(title(section)));
  subtitle_->set_text(std::string(subtitle(section)));
}

/// A count in a tile.
class InspectorStat : public VStack {
 public:
  InspectorStat(const Glib::ustring& title, AccentTone tone);
  void setValue(int value) { value_->set_text(std::to_string(value)); }

 private:
  Gtk::Label* value_;
};

Gtk::Widget* haloedDot(AccentTone tone) {
  auto* halo = toned(tone, tile(24, dot(tone, 8)));
  halo->add_css_class("soft-circle");
  return halo;
}

InspectorStat::InspectorStat(const Glib::ustring& title, AccentTone tone)
    : VStack(0), value_(text("", {TextStyle::title2, FontWeight::semibold})) {
  auto* figure = vstack(2, {value_, text(title, {TextStyle::caption, {}, TextColor::dimmed})});
  auto* row = hstack(defaultSpacing, {figure, hspacer(), haloedDot(tone)});
  add({raisedPanel(Outline::line, padded(12, row))});
}

struct Figure {
  const char* title;
  AccentTone tone;
  int (WorkspaceStore::*count)() const;
};
constexpr std::array figures{
    Figure{"Active requests", AccentTone::blue, &WorkspaceStore::activeRequestCount},
    Figure{"Pending approvals", AccentTone::gold, &WorkspaceStore::pendingApprovalCount},
    Figure{"Connected apps", AccentTone::green, &WorkspaceStore::connectedCount},
};

class Stats : public VStack {
 public:
  explicit Stats(WorkspaceStore& store);

 private:
  void refresh();

  WorkspaceStore& store_;
  WidgetPer<int (WorkspaceStore::*)() const, InspectorStat> tiles_; ///< by what they count
};

Stats::Stats(WorkspaceStore& store) : VStack(10, HorizontalAlignment::centre), store_(store) {
  for (const auto& [title, tone, count] : figures) {
    auto* tile = Gtk::make_managed<InspectorStat>(title, tone);
    tiles_.emplace_back(count, tile);
    add({tile});
  }
  observe(store, *this, &Stats::refresh);
}

void Stats::refresh() {
  for (const auto& [count, tile] : tiles_)
    tile->setValue((store_.*count)());
}

class PriorityCard : public VStack {
 public:
  explicit PriorityCard(const ApprovalItem& approval);
  void show(const ApprovalItem& approval);

 private:
  StatusPill* state_;
  Gtk::Label* agent_;
  Gtk::Label* title_;
};

PriorityCard::PriorityCard(const ApprovalItem& approval)
    : VStack(0), state_(Gtk::make_managed<StatusPill>("", AccentTone::ink)),
      agent_(text("", {TextStyle::caption, {}, TextColor::dimmed})),
      title_(text("", {TextStyle::callout, FontWeight::medium}, 2)) {
  agent_->set_xalign(1);
  agent_->set_justify(Gtk::Justification::RIGHT);
  auto* head = hstack(defaultSpacing, {state_, hspacer(), agent_});
  add({raisedPanel(Outline::line, padded(12, vstack(8, {head, title_})))});
  show(approval);
}

void PriorityCard::show(const ApprovalItem& approval) {
  state_->show(std::string(rawValue(approval.state)), tone(approval.state));
  agent_->set_text(approval.agent);
  title_->set_text(approval.title);
}

class ActivityRow : public HStack {
 public:
  explicit ActivityRow(const ActivityItem& entry);
  void show(const ActivityItem& entry);

 private:
  Gtk::Widget* dot_;
  Gtk::Label* title_;
  Gtk::Label* timestamp_;
};

ActivityRow::ActivityRow(const ActivityItem& entry)
    : HStack(10, VerticalAlignment::top), dot_(dot(entry.tone, 8)),
      title_(text("", {TextStyle::callout, FontWeight::medium})),
      timestamp_(text("", {TextStyle::caption2, {}, TextColor::dimmed})) {
  // Six points further down the dot stands level with the first line of the title.
  add({padded({.top = 6}, dot_), vstack(2, {title_, timestamp_})});
  show(entry);
}

void ActivityRow::show(const ActivityItem& entry) {
  setTone(*dot_, entry.tone);
  title_->set_text(entry.title);
  timestamp_->set_text(entry.timestamp);
}

/// A heading over the rows of a list.
Gtk::Widget* block(const Glib::ustring& heading, Gtk::Widget* rows) {
  return vstack(10, {text(heading, {TextStyle::subheadline, FontWeight::semibold}), rows});
}

} // namespace

InspectorPanel::InspectorPanel(WorkspaceStore& store) : VStack(0) {
  add_css_class("inspector-panel");
  auto* priority = recordRows<VStack>(store, firstOf(store.approvals, 3), made<PriorityCard>, 10);
  auto* activity = recordRows<VStack>(store, firstOf(store.activity, 4), made<ActivityRow>, 10);
  add({padded(18, vstack(18, {Gtk::make_managed<Header>(store), Gtk::make_managed<Stats>(store),
                              block("Priority", priority), block("Recent activity", activity), vspacer()}))});
}

} // namespace quorvel
