#include "console/ApprovalsView.h"

#include "brand/SectionHeader.h"
#include "brand/StatusPill.h"
#include "brand/buttons.h"
#include "brand/surfaces.h"
#include "brand/text.h"
#include "console/RecordRows.h"
#include "console/trailingTexts.h"
#include "layout/accessible.h"
#include "layout/focusAsWhole.h"

#include <algorithm>

namespace quorvel {
namespace {

using Decide = std::function<void(const ApprovalItem&)>;

Gtk::Widget* stepChip(const std::string& step) {
  constexpr TextLook look{TextStyle::caption, FontWeight::bold, TextColor::secondaryInk};
  return surface("step-chip", padded(10, 7, text(step, look)));
}

/// One gate. When a button with the focus is disabled by its own press the row takes the focus, where Return
/// and Space decide nothing; Tab leads on from there.
class ApprovalRow : public VStack {
 public:
  ApprovalRow(const ApprovalItem& item, Decide approve, Decide pause);
  void show(const ApprovalItem& item);
  bool holdsFocus() const;

 private:
  Gtk::Widget* titleBlock();
  void showSteps(const std::vector<std::string>& steps);

  ApprovalItem item_;
  Gtk::Label* title_;
  StatusPill* state_;
  StatusPill* risk_;
  Gtk::Label* summary_;
  Gtk::Label* agent_;
  Gtk::Label* source_;
  HStack* steps_;
  Gtk::Button* pause_;
  Gtk::Button* approve_;
};

ApprovalRow::ApprovalRow(const ApprovalItem& item, Decide approve, Decide pause)
    : VStack(0), title_(text("", {TextStyle::title3, FontWeight::semibold, TextColor::ink})),
      state_(Gtk::make_managed<StatusPill>("", AccentTone::ink)),
      risk_(Gtk::make_managed<StatusPill>("", AccentTone::clay)),
      summary_(text("", {TextStyle::callout, {}, TextColor::secondaryInk})),
      agent_(text("", {TextStyle::callout, FontWeight::medium})),
      source_(text("", {TextStyle::caption, {}, TextColor::dimmed})),
      steps_(stretched(hstack(defaultSpacing, {}))),
      pause_(quorvel::button("Pause", ButtonStyle::bordered, [this, pause] { pause(item_); })),
      approve_(quorvel::button("Approve", ButtonStyle::prominent, [this, approve] { approve(item_); })) {
  auto* body = withTrailingTexts(summary_, 6, {agent_, source_});
  auto* actions = hstack(defaultSpacing, {hspacer(), pause_, approve_});
  add({quorvelCard(vstack(16, {titleBlock(), body, steps_, actions}))});
  add_css_class("approval-row");
  show(item);
}

Gtk::Widget* ApprovalRow::titleBlock() {
  return vstack(8, {title_, hstack(8, {state_, risk_})});
}

void ApprovalRow::show(const ApprovalItem& item) {
  const bool isWaiting = item.state == ApprovalState::waiting;
  title_->set_text(item.title);
  state_->show(std::string(rawValue(item.state)), tone(item.state),
               isWaiting ? PillStyle::prominent : PillStyle::plain);
  risk_->show(item.risk, AccentTone::clay);
  summary_->set_text(item.summary);
  agent_->set_text(item.agent);
  source_->set_text(item.source);
  if (item.steps != item_.steps)
    showSteps(item.steps);
  if (!isWaiting && (pause_->is_focus() || approve_->is_focus()))
    focusAsWhole(*this);
  for (auto* button : {pause_, approve_})
    button->set_sensitive(isWaiting);
  setAccessibleName(*this, item.title);
  setAccessibleName(*pause_, "Pause " + item.title);
  setAccessibleName(*approve_, "Approve " + item.title);
  item_ = item;
}

bool ApprovalRow::holdsFocus() const {
  return is_focus() || pause_->is_focus() || approve_->is_focus();
}

void ApprovalRow::showSteps(const std::vector<std::string>& steps) {
  while (auto* chip = steps_->get_first_child())
    steps_->remove(*chip);
  for (const auto& step : steps)
    steps_->add({stepChip(step)});
}

using ApprovalRows = LazyRecordRows<ApprovalItem, ApprovalRow>;

/// The gates. Where the one with the focus is gone, that which now stands in its place takes the focus, or
/// the last.
class Gates : public ApprovalRows {
 public:
  using ApprovalRows::ApprovalRows;

 private:
  void refresh() override;
  std::vector<ApprovalRow*> rows();
};

void Gates::refresh() {
  const auto before = rows();
  const auto focused = std::ranges::find_if(before, &ApprovalRow::holdsFocus);
  const auto place = static_cast<std::size_t>(focused - before.begin());
  ApprovalRows::refresh();
  const auto after = rows();
  if (place < before.size() && std::ranges::find(after, before[place]) == after.end() && !after.empty())
    focusAsWhole(*after[std::min(place, after.size() - 1)]);
}

std::vector<ApprovalRow*> Gates::rows() {
  std::vector<ApprovalRow*> rows;
  for (auto* child = get_first_child(); child; child = child->get_next_sibling())
    rows.push_back(dynamic_cast<ApprovalRow*>(child));
  return rows;
}

} // namespace

ApprovalsView::ApprovalsView(WorkspaceStore& store) : VStack(22) {
  const auto makeRow = [&store](const ApprovalItem& item) {
    return Gtk::make_managed<ApprovalRow>(
        item, [&store](const ApprovalItem& shown) { store.approve(shown); },
        [&store](const ApprovalItem& shown) { store.pause(shown); });
  };
  add({Gtk::make_managed<SectionHeader>("Human gates", "Important actions wait here",
                                        "Finance, ad spend, bookings, customer-facing messages, and "
                                        "connected-app changes are separated from normal drafting."),
       Gtk::make_managed<Gates>(store, store.approvals, LazyGrid::Form{.spacing = 12}, makeRow)});
}

} // namespace quorvel
