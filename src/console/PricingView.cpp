#include "console/PricingView.h"

#include "brand/SectionHeader.h"
#include "brand/StatusPill.h"
#include "brand/buttons.h"
#include "brand/surfaces.h"
#include "brand/symbol.h"
#include "brand/tone.h"
#include "console/RecordRows.h"
#include "layout/accessible.h"

namespace quorvel {
namespace {

/// Between cards, and between the tiles below them.
constexpr int gap = 14;

void nothing() {}

Gtk::Widget* includedRow(const Glib::ustring& entry) {
  return hstack(8, {symbol("checkmark.circle.fill", {.color = TextColor::tone}),
                    text(entry, {TextStyle::caption, {}, TextColor::ink})});
}

class PlanCard : public VStack {
 public:
  explicit PlanCard(const PricingPlan& plan)
      : VStack(0), name_(text("", {TextStyle::title3, FontWeight::semibold})),
        featured_(Gtk::make_managed<StatusPill>("Individual", plan.tone)),
        price_(text("", {TextStyle::largeTitle, FontWeight::semibold, TextColor::tone, FontDesign::rounded})),
        audience_(text("", {TextStyle::callout, {}, TextColor::secondaryInk})), included_(vstack(9, {})),
        choose_(button("Choose Starter", ButtonStyle::prominent, nothing)),
        select_(button("Select Plan", ButtonStyle::bordered, nothing)) {
    auto* head = hstack(defaultSpacing, {name_, hspacer(), featured_});
    add({quorvelCard(vstack(16, {head, price_, audience_, divider(), included_, choose_, select_}))});
    show(plan);
  }

  void show(const PricingPlan& plan) {
    name_->set_text(plan.name);
    setAccessibleName(*select_, "Select Plan " + plan.name);
    featured_->show("Individual", plan.tone);
    price_->set_text(plan.price);
    setTone(*price_, plan.tone);
    audience_->set_text(plan.audience);
    setTone(*included_, plan.tone);
    showIncluded(plan.included);
    featured_->set_visible(plan.isFeatured);
    choose_->set_visible(plan.isFeatured);
    select_->set_visible(!plan.isFeatured);
  }

 private:
  void showIncluded(const std::vector<std::string>& entries) {
    while (auto* row = included_->get_first_child())
      included_->remove(*row);
    for (const auto& entry : entries)
      included_->add({includedRow(entry)});
  }

  Gtk::Label* name_;
  StatusPill* featured_;
  Gtk::Label* price_;
  Gtk::Label* audience_;
  VStack* included_;
  Gtk::Button* choose_;
  Gtk::Button* select_;
};

Gtk::Widget* comparisonTile(const Glib::ustring& name, const Glib::ustring& detail, AccentTone tone) {
  return quorvelCard(
      stretched(vstack(12, {dot(tone, 12), text(name, {TextStyle::headline}),
                            text(detail, {TextStyle::callout, {}, TextColor::secondaryInk})})));
}

Gtk::Widget* comparison() {
  auto* tiles =
      hstack(gap,
             {comparisonTile(
                  "Quorvel",
                  "Always-on agents, connected apps, browser context, phone/message access, and approvals.",
                  AccentTone::green),
              comparisonTile(
                  "General AI chat",
                  "Useful responses, but follow-up, routing, app context, and approval tracking stay manual.",
                  AccentTone::slate),
              comparisonTile(
                  "Developer tools",
                  "Strong for software work, while Quorvel focuses on operations, customers, ads, orders, "
                  "and finance.",
                  AccentTone::blue)},
             VerticalAlignment::top);
  tiles->setEqualWidths();
  return tiles;
}

} // namespace

PricingView::PricingView(WorkspaceStore& store) : VStack(22) {
  add({Gtk::make_managed<SectionHeader>("Plans", "From one person to managed rollout",
                                        "The desktop app mirrors the public Quorvel packaging: start small, "
                                        "add helpers, then add managed setup for teams."),
       lazyRecordRows(store, store.plans, {.spacing = gap, .minimumColumnWidth = 230}, made<PlanCard>),
       comparison()});
}

} // namespace quorvel
