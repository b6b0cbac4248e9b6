#include "console/OverviewView.h"

#include "brand/BrandMark.h"
#include "brand/MetricTile.h"
#include "brand/SectionHeader.h"
#include "brand/buttons.h"
#include "brand/surfaces.h"
#include "console/ActivityCard.h"
#include "console/CommandThreadCard.h"
#include "console/RequestQueueCard.h"
#include "layout/AdaptiveGrid.h"
#include "layout/FirstThatFits.h"
#include "layout/Frame.h"
#include "observation/observe.h"

#include <array>
#include <string>

namespace quorvel {
namespace {

using Gtk::Orientation;

struct Metric {
  const char* title;
  const char* detail;
  AccentTone tone;
  int (WorkspaceStore::*count)() const;
};
constexpr std::array metrics{
    Metric{"Active requests", "Routed or drafting", AccentTone::blue, &WorkspaceStore::activeRequestCount},
    Metric{"Approval queue", "Waiting on you", AccentTone::gold, &WorkspaceStore::pendingApprovalCount},
    Metric{"Agents working", "Currently active", AccentTone::green, &WorkspaceStore::draftingCount},
    Metric{"Connected tools", "Synced sources", AccentTone::clay, &WorkspaceStore::connectedCount},
};

Gtk::Widget* heroCopy(WorkspaceStore& store) {
  const auto show = [&store](WorkspaceSection section) {
    return [&store, section] { store.selectedSection = section; };
  };
  return vstack(16, {Gtk::make_managed<SectionHeader>("Always-on AI agents", "Quorvel is a command tool.",
                                                      "Less rounded startup-app energy. More precise, quiet, "
                                                      "operator-grade interface for agent work."),
                     hstack(10, {button("New Request", "plus.message.fill", ButtonStyle::prominent,
                                        [&store] { store.createRequest(); }),
                                 button("Review Queue", "checkmark.seal.fill", ButtonStyle::bordered,
                                        show(WorkspaceSection::approvals)),
                                 button("Connectors", "point.3.connected.trianglepath.dotted",
                                        ButtonStyle::bordered, show(WorkspaceSection::connectors))})});
}

Gtk::Widget* hero(WorkspaceStore& store) {
  auto* copy = heroCopy(store);
  const auto row = [copy](int spacing, Gtk::Widget* between, int mark) {
    return Arrangement{Orientation::HORIZONTAL,
                       spacing,
                       {copy, between, Gtk::make_managed<BrandMark>(mark)},
                       Gtk::Align::CENTER};
  };
  auto* forms = Gtk::make_managed<FirstThatFits>(
      std::vector{row(28, hspacer(24), 104), row(defaultSpacing, hspacer(), 74)});
  return quorvelCard(stretched(forms), 24);
}

/// The cards' texts wrap and shorten, so what they happen to say does not decide how the cards are arranged.
Gtk::Widget* workArea(WorkspaceStore& store) {
  const auto column = [](int minimumWidth, Gtk::Widget* content) {
    return stretched(Gtk::make_managed<Frame>(Frame::Size{.minimumWidth = minimumWidth}, *content));
  };
  auto* thread = column(420, Gtk::make_managed<CommandThreadCard>([&store] { store.createRequest(); }));
  auto* news = column(
      340, vstack(18, {Gtk::make_managed<RequestQueueCard>(store), Gtk::make_managed<ActivityCard>(store)}));
  const Arrangement besideEachOther{Orientation::HORIZONTAL, 18, {thread, news}, Gtk::Align::START};
  const Arrangement belowEachOther{Orientation::VERTICAL, 18, {thread, news}};
  return stretched(Gtk::make_managed<FirstThatFits>(std::vector{besideEachOther, belowEachOther}));
}

} // namespace

OverviewView::OverviewView(WorkspaceStore& store) : VStack(24), store_(store) {
  add({hero(store), metricGrid(), workArea(store)});
  observe(store, *this, &OverviewView::refresh);
}

Gtk::Widget* OverviewView::metricGrid() {
  auto* grid = Gtk::make_managed<AdaptiveGrid>(168, 14);
  for (const auto& [title, detail, tone, count] : metrics) {
    auto* tile = Gtk::make_managed<MetricTile>(title, "", detail, tone);
    tiles_.emplace_back(count, tile);
    grid->append(*tile);
  }
  return grid;
}

void OverviewView::refresh() {
  for (const auto& [count, tile] : tiles_)
    tile->setValue(std::to_string((store_.*count)()));
}

} // namespace quorvel
