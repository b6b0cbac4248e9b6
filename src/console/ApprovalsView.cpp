#include "console/ApprovalsView.h"

#include "brand/SectionHeader.h"
#include "brand/StatusPill.h"
#include "brand/buttons.h"
#include "brand/surfaces.h"
#include "brand/text.h"
#include "console/RecordRows.h"
#include "console/trailingTexts.h"

#include <algorithm>
#include <gtkmm/root.h>
#include <optional>

namespace quorvel {
namespace {

enum class Decision { pause, approve };

using Decide = std::function<void(const ApprovalItem&)>;

Gtk::Widget* stepChip(const std::string& step) {
  constexpr TextLook look{TextStyle::caption, FontWeight::bold, TextColor::secondaryInk};
  return surface("step-chip", padded(10, 7, text(step, look)));
}

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
  auto* body = withTrailingTexts(summary_, 6, {agent_, source_});
  auto* actions = hstack(defaultSpacing, {hspacer(), pause_, approve_});
  add({quorvelCard(vstack(16, {titleBlock(), body, steps_, actions}))});
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

using ApprovalRows = RecordRows<VStack, ApprovalItem, ApprovalRow>;

/// The gates. When the button with the focus is disabled by its own press, the focus goes on to the same
/// button of the next gate that waits, or else of the one before.
class Gates : public ApprovalRows {
 public:
  using ApprovalRows::ApprovalRows;

 private:
  /// The button that has the focus: which row it stands in, counted from 0, and what it decides.
  struct Focus {
    std::size_t place;
    Decision decision;
  };
  void refresh() override;
  std::vector<ApprovalRow*> rows();
  std::optional<Focus> focus();
  void passOn(const Focus& focus);
};

void Gates::refresh() {
  const auto focused = focus();
  ApprovalRows::refresh();
  if (focused)
    passOn(*focused);
}

std::vector<ApprovalRow*> Gates::rows() {
  std::vector<ApprovalRow*> rows;
  for (auto* child = get_first_child(); child; child = child->get_next_sibling())
    rows.push_back(dynamic_cast<ApprovalRow*>(child));
  return rows;
}

std::optional<Gates::Focus> Gates::focus() {
  const auto candidates = rows();
  for (std::size_t place = 0; place < candidates.size(); ++place)
    for (const auto decision : {Decision::pause, Decision::approve})
      if (candidates[place]->button(decision).has_focus())
        return Focus{place, decision};
  return std::nullopt;
}

void Gates::passOn(const Focus& focus) {
  auto candidates = rows();
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
       Gtk::make_managed<Gates>(store, allOf(store.approvals), makeRow, 12)});
}

} // namespace quorvel
