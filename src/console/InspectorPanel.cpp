#include "console/InspectorPanel.h"

#include "brand/StatusPill.h"
#include "brand/symbol.h"
#include "brand/tone.h"
#include "layout/Frame.h"
#include "layout/KeyedRows.h"
#include "observation/observe.h"

#include <ranges>
#include <string>

namespace quorvel {
namespace {

constexpr std::size_t shownApprovals = 3;
constexpr std::size_t shownActivity = 4;

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
  auto* halo = toned(tone, framed({.width = 24, .height = 24}, dot(tone, 8)));
  halo->add_css_class("soft-circle");
  return halo;
}

InspectorStat::InspectorStat(const Glib::ustring& title, AccentTone tone)
    : VStack(0), value_(text("", {TextStyle::title2, FontWeight::semibold})) {
  add_css_class("panel-raised");
  add_css_class("outlined");
  auto* figure = vstack(2, {value_, text(title, {TextStyle::caption, {}, TextColor::dimmed})});
  add({padded(12, hstack(defaultSpacing, {figure, hspacer(), haloedDot(tone)}))});
}

class Stats : public VStack {
 public:
  explicit Stats(WorkspaceStore& store);

 private:
  void refresh();

  WorkspaceStore& store_;
  InspectorStat* requests_;
  InspectorStat* approvals_;
  InspectorStat* apps_;
};

Stats::Stats(WorkspaceStore& store)
    : VStack(10, HorizontalAlignment::centre), store_(store),
      requests_(Gtk::make_managed<InspectorStat>("Active requests", AccentTone::blue)),
      approvals_(Gtk::make_managed<InspectorStat>("Pending approvals", AccentTone::gold)),
      apps_(Gtk::make_managed<InspectorStat>("Connected apps", AccentTone::green)) {
  add({requests_, approvals_, apps_});
  observe(store, *this, &Stats::refresh);
}

void Stats::refresh() {
  requests_->setValue(store_.activeRequestCount());
  approvals_->setValue(store_.pendingApprovalCount());
  apps_->setValue(store_.connectedCount());
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
  add_css_class("panel-raised");
  add_css_class("outlined");
  agent_->set_xalign(1);
  agent_->set_justify(Gtk::Justification::RIGHT);
  add({padded(12, vstack(8, {hstack(defaultSpacing, {state_, hspacer(), agent_}), title_}))});
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

/// A heading over the first few records of one of the store's lists.
template <Record Item, class Row>
class Block : public VStack {
 public:
  using List = Published<RecordList<Item>>;
  Block(const Glib::ustring& heading, WorkspaceStore& store, const List& list, std::size_t shown)
      : VStack(10), list_(list), shown_(shown), stack_(vstack(10, {})),
        rows_(*stack_, [](const Item& item) { return Gtk::make_managed<Row>(item); }) {
    add({text(heading, {TextStyle::subheadline, FontWeight::semibold}), stretched(stack_)});
    observe(store, *this, &Block::refresh);
  }

 private:
  void refresh() { rows_.show(*list_ | std::views::take(shown_)); }

  const List& list_;
  std::size_t shown_;
  VStack* stack_;
  KeyedRows<Item, Row> rows_;
};
using PriorityBlock = Block<ApprovalItem, PriorityCard>;
using ActivityBlock = Block<ActivityItem, ActivityRow>;

} // namespace

InspectorPanel::InspectorPanel(WorkspaceStore& store) : VStack(0) {
  add_css_class("inspector-panel");
  auto* priority = Gtk::make_managed<PriorityBlock>("Priority", store, store.approvals, shownApprovals);
  auto* activity = Gtk::make_managed<ActivityBlock>("Recent activity", store, store.activity, shownActivity);
  add({padded(18, vstack(18, {Gtk::make_managed<Header>(store), Gtk::make_managed<Stats>(store), priority,
                              activity, vspacer()}))});
}

} // namespace quorvel
