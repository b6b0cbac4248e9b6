#include "console/ApprovalsView.h"

#include "brand/SectionHeader.h"
#include "brand/StatusPill.h"
#include "brand/buttons.h"
#include "brand/card.h"
#include "brand/text.h"
#include "console/trailingTexts.h"
#include "observation/observe.h"

#include <algorithm>
#include <gtkmm/root.h>

namespace quorvel {
namespace {

enum class Decision { pause, approve };

using Decide = std::function<void(const ApprovalItem&)>;

Gtk::Widget* stepChip(const std::string& step) {
  auto* chip =
      hstack(0, {padded(10, 7, text(step, {TextStyle::caption, FontWeight::bold, TextColor::secondaryInk}))});
  chip->add_css_class("step-chip");
  return chip;
}

} // namespace

class ApprovalRow : public VStack {
 public:
  ApprovalRow(const ApprovalItem& item, Decide approve, Decide pause);
  void show(const ApprovalItem& item);
  Gtk::Button& button(Decision decision) const { return *(decision == Decision::pause ? pause_ : approve_); }

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
  applyCardStyle(*this);
  add({padded(18, stretched(vstack(16, {titleBlock(), withTrailingTexts(summary_, 6, {agent_, source_}),
                                        steps_, hstack(defaultSpacing, {hspacer(), pause_, approve_})})))});
  show(item);
}

Gtk::Widget* ApprovalRow::titleBlock() {
  return vstack(8, {title_, hstack(8, {state_, risk_})});
}

void ApprovalRow::show(const ApprovalItem& item) {
  const bool isWaiting = item.state == ApprovalState::waiting;
  title_->set_text(item.title);
  state_->show(std::string(rawValue(item.state)), tone(item.state), isWaiting);
  risk_->show(item.risk, AccentTone::clay);
  summary_->set_text(item.summary);
  agent_->set_text(item.agent);
  source_->set_text(item.source);
  if (item.steps != item_.steps)
    showSteps(item.steps);
  for (const auto decision : {Decision::pause, Decision::approve})
    button(decision).set_sensitive(isWaiting);
  setAccessibleName(*pause_, "Pause " + item.title);
  setAccessibleName(*approve_, "Approve " + item.title);
  item_ = item;
}

void ApprovalRow::showSteps(const std::vector<std::string>& steps) {
  while (auto* chip = steps_->get_first_child())
    steps_->remove(*chip);
  for (const auto& step : steps)
    steps_->add({stepChip(step)});
}

/// The button that has the focus: which row it stands in, counted from 0, and what it decides.
struct ApprovalsView::Focus {
  std::size_t place;
  Decision decision;
};

ApprovalsView::ApprovalsView(WorkspaceStore& store)
    : VStack(22), store_(store), list_(vstack(12, {})), rows_(*list_, [&store](const ApprovalItem& item) {
        return stretched(Gtk::make_managed<ApprovalRow>(
            item, [&store](const ApprovalItem& shown) { store.approve(shown); },
            [&store](const ApprovalItem& shown) { store.pause(shown); }));
      }) {
  add({Gtk::make_managed<SectionHeader>("Human gates", "Important actions wait here",
                                        "Finance, ad spend, bookings, customer-facing messages, and "
                                        "connected-app changes are separated from normal drafting."),
       stretched(list_)});
  observe(store, *this, &ApprovalsView::refresh);
}

void ApprovalsView::refresh() {
  const auto focused = focus();
  rows_.show(*store_.approvals);
  if (focused)
    passOn(*focused);
}

namespace {

std::vector<ApprovalRow*> rowsOf(VStack& list) {
  std::vector<ApprovalRow*> rows;
  for (auto* child = list.get_first_child(); child; child = child->get_next_sibling())
    rows.push_back(dynamic_cast<ApprovalRow*>(child));
  return rows;
}

} // namespace

std::optional<ApprovalsView::Focus> ApprovalsView::focus() const {
  const auto rows = rowsOf(*list_);
  for (std::size_t place = 0; place < rows.size(); ++place)
    for (const auto decision : {Decision::pause, Decision::approve})
      if (rows[place]->button(decision).has_focus())
        return Focus{place, decision};
  return std::nullopt;
}

void ApprovalsView::passOn(const Focus& focus) {
  auto candidates = rowsOf(*list_);
  // From the row that had it downwards, then upwards from there.
  const auto before =
      candidates.begin() + static_cast<std::ptrdiff_t>(std::min(focus.place, candidates.size()));
  std::reverse(candidates.begin(), before);
  std::rotate(candidates.begin(), before, candidates.end());
  const auto next = std::ranges::find_if(
      candidates, [&](auto* row) { return row->button(focus.decision).get_sensitive(); });
  if (next != candidates.end())
    (*next)->button(focus.decision).grab_focus();
  else if (auto* root = dynamic_cast<Gtk::Widget*>(get_root()))
    root->child_focus(Gtk::DirectionType::TAB_FORWARD);
}

} // namespace quorvel
