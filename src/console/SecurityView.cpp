#include "console/SecurityView.h"

#include "brand/ModelSwitch.h"
#include "brand/SectionHeader.h"
#include "brand/StatusPill.h"
#include "brand/surfaces.h"
#include "brand/symbol.h"
#include "brand/tone.h"
#include "console/RecordRows.h"
#include "layout/Frame.h"
#include "layout/WidgetPer.h"
#include "layout/accessible.h"
#include "observation/observe.h"

#include <array>
#include <string>

namespace quorvel {
namespace {

struct Gate {
  PreferenceKey key;
  const char* title;
  const char* detail;
  AccentTone tone;
};
constexpr std::array gates{
    Gate{PreferenceKey::requireApprovalForSpend, "Ad spend changes", "Budget moves and campaign edits",
         AccentTone::gold},
    Gate{PreferenceKey::requireApprovalForCustomerMessages, "Customer-facing messages",
         "Email, chat, SMS, and support replies", AccentTone::green},
    Gate{PreferenceKey::requireApprovalForBookings, "Calendar bookings", "Appointments and callback holds",
         AccentTone::blue},
    Gate{PreferenceKey::keepActivityHistory, "Activity history", "Saved notes, drafts, and decision events",
         AccentTone::slate},
};

class TrustToggle : public VStack {
 public:
  TrustToggle(const Gate& gate, std::function<void(bool)> write)
      : VStack(0),
        icon_(symbol("lock.shield.fill", {TextStyle::title3, FontWeight::semibold, TextColor::tone})),
        switch_(Gtk::make_managed<ModelSwitch>(std::move(write))) {
    auto* tile = toned(gate.tone, quorvel::tile(42, icon_));
    tile->add_css_class("soft-tile");
    auto* texts = vstack(4, {text(gate.title, {TextStyle::headline}),
                             text(gate.detail, {TextStyle::callout, {}, TextColor::secondaryInk})});
    setAccessibleName(*switch_, gate.title);
    add({quorvelCard(hstack(14, {tile, texts, hspacer(), switch_}))});
  }

  void show(bool isOn) {
    setSymbol(*icon_, isOn ? "lock.shield.fill" : "lock.open.fill");
    switch_->show(isOn);
  }

 private:
  Gtk::Image* icon_;
  ModelSwitch* switch_;
};

/// The four switches, one below the other.
class TrustToggles : public VStack {
 public:
  explicit TrustToggles(Preferences& preferences)
      : VStack(14, HorizontalAlignment::centre), preferences_(preferences) {
    for (const auto& gate : gates) {
      const auto write = [&preferences, key = gate.key](bool isOn) { preferences.set(key, isOn); };
      auto* toggle = Gtk::make_managed<TrustToggle>(gate, write);
      toggles_.emplace_back(gate.key, toggle);
      add({toggle});
    }
    observe(preferences, *this, &TrustToggles::refresh);
  }

 private:
  void refresh() {
    for (const auto& [key, toggle] : toggles_)
      toggle->show(preferences_.isOn(key));
  }

  Preferences& preferences_;
  WidgetPer<PreferenceKey, TrustToggle> toggles_;
};

class ApprovalStateRow : public VStack {
 public:
  explicit ApprovalStateRow(const ApprovalItem& approval)
      : VStack(0), icon_(symbol("lock.fill", {.color = TextColor::tone})),
        title_(text("", {TextStyle::callout, FontWeight::semibold})),
        risk_(text("", {TextStyle::caption, {}, TextColor::dimmed})),
        state_(Gtk::make_managed<StatusPill>("", tone(approval.state))) {
    add({padded(0, 8,
                hstack(12,
                       {framed({.minimumWidth = 22}, icon_), vstack(3, {title_, risk_}), hspacer(), state_},
                       VerticalAlignment::top))});
    show(approval);
  }

  void show(const ApprovalItem& approval) {
    setSymbol(*icon_, approval.state == ApprovalState::approved ? "checkmark.circle.fill" : "lock.fill");
    setTone(*icon_, tone(approval.state));
    title_->set_text(approval.title);
    risk_->set_text(approval.risk);
    state_->show(std::string(rawValue(approval.state)), tone(approval.state));
  }

 private:
  Gtk::Image* icon_;
  Gtk::Label* title_;
  Gtk::Label* risk_;
  StatusPill* state_;
};

Gtk::Widget* approvalProfile(WorkspaceStore& store) {
  auto* profile =
      vstack(16, {text("Current approval profile", {TextStyle::title3, FontWeight::semibold}),
                  lazyRecordRows(store, store.approvals, {.spacing = 16}, made<ApprovalStateRow>)});
  return quorvelCard(stretched(Gtk::make_managed<Frame>(Frame::Size{.minimumWidth = 340}, *profile)));
}

} // namespace

SecurityView::SecurityView(WorkspaceStore& store, Preferences& preferences) : VStack(22) {
  auto* toggles = Gtk::make_managed<TrustToggles>(preferences);
  auto* column = Gtk::make_managed<Frame>(Frame::Size{.minimumWidth = 420}, *toggles);
  add({Gtk::make_managed<SectionHeader>(
           "Trust controls", "Visible work, explicit approval",
           "Quorvel separates normal drafting from sensitive actions and records "
           "the source context used by helper agents."),
       hstack(18, {stretched(column), approvalProfile(store)}, VerticalAlignment::top)});
}

} // namespace quorvel
