#include "console/ConnectorsView.h"

#include "brand/ModelSwitch.h"
#include "brand/SectionHeader.h"
#include "brand/StatusPill.h"
#include "brand/buttons.h"
#include "brand/surfaces.h"
#include "brand/symbol.h"
#include "brand/tone.h"
#include "console/RecordRows.h"
#include "layout/Frame.h"
#include "layout/accessible.h"

namespace quorvel {
namespace {

class ConnectorCard : public VStack {
 public:
  ConnectorCard(const ConnectorItem& connector, const Action& toggle)
      : VStack(0),
        symbol_(symbol(connector.symbol, {TextStyle::title3, FontWeight::semibold, TextColor::tone})),
        tile_(tile(38, symbol_)), state_(Gtk::make_managed<StatusPill>("", connector.tone)),
        name_(text("", {TextStyle::title3, FontWeight::semibold})),
        category_(text("", {TextStyle::callout, {}, TextColor::secondaryInk})),
        lastSync_(text("", {TextStyle::caption, {}, TextColor::dimmed})),
        // Which way it goes is the store's decision: it flips what it holds.
        switch_(Gtk::make_managed<ModelSwitch>([toggle](bool) { toggle(); })) {
    tile_->add_css_class("soft-tile");
    auto* head = hstack(defaultSpacing, {tile_, hspacer(), state_});
    auto* identity = vstack(5, {name_, category_});
    auto* sync = hstack(defaultSpacing, {lastSync_, hspacer(), switch_});
    add({quorvelCard(vstack(16, {head, identity, sync}))});
    show(connector);
  }

  void show(const ConnectorItem& connector) {
    setSymbol(*symbol_, connector.symbol);
    setTone(*tile_, connector.tone);
    if (connector.isConnected)
      state_->show("Connected", AccentTone::green);
    else
      state_->show("Off", AccentTone::slate);
    name_->set_text(connector.name);
    category_->set_text(connector.category);
    lastSync_->set_text(connector.lastSync);
    switch_->show(connector.isConnected);
    setAccessibleName(*switch_, connector.name);
  }

 private:
  Gtk::Image* symbol_;
  Frame* tile_;
  StatusPill* state_;
  Gtk::Label* name_;
  Gtk::Label* category_;
  Gtk::Label* lastSync_;
  ModelSwitch* switch_;
};

} // namespace

ConnectorsView::ConnectorsView(WorkspaceStore& store) : VStack(22) {
  const auto makeCard = [&store](const ConnectorItem& connector) {
    return Gtk::make_managed<ConnectorCard>(connector,
                                            [&store, connector] { store.toggleConnector(connector); });
  };
  add({Gtk::make_managed<SectionHeader>("Connectors", "Real context from working apps",
                                        "Quorvel's helper agents can work from messages, files, calendars, "
                                        "stores, payments, finance, ads, and browser context."),
       lazyRecordRows(store, store.connectors, {.spacing = 14, .minimumColumnWidth = 230}, makeCard)});
}

} // namespace quorvel
