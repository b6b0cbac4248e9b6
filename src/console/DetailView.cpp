#include "console/DetailView.h"

#include "console/AgentsView.h"
#include "console/ApprovalsView.h"
#include "console/BrowserWorkspaceView.h"
#include "console/ConnectorsView.h"
#include "console/OverviewView.h"
#include "console/PricingView.h"
#include "console/RequestsView.h"
#include "console/SecurityView.h"
#include "layout/accessible.h"
#include "layout/focusAsWhole.h"
#include "layout/stacks.h"
#include "observation/observe.h"

#include <gtkmm/adjustment.h>
#include <gtkmm/root.h>

namespace quorvel {

DetailView::DetailView(WorkspaceStore& store, Preferences& preferences)
    : store_(store), preferences_(preferences) {
  scrollVertically(*this, "Screen");
  observe(store, *this, &DetailView::refresh);
}

void DetailView::refresh() {
  const WorkspaceSection section = store_.selectedSection;
  if (shown_ == section)
    return;
  shown_ = section;
  const bool focusMoves = holdsFocus();
  auto* next = padded(28, screen(section));
  next->set_valign(Gtk::Align::START);
  setAccessibleName(*next, std::string(title(section)));
  set_child(*next);
  if (focusMoves)
    focusAsWhole(*next);
  get_vadjustment()->set_value(0);
}

Gtk::Widget* DetailView::screen(WorkspaceSection section) {
  switch (section) {
  case WorkspaceSection::overview:
    return Gtk::make_managed<OverviewView>(store_);
  case WorkspaceSection::agents:
    return Gtk::make_managed<AgentsView>(store_);
  case WorkspaceSection::requests:
    return Gtk::make_managed<RequestsView>(store_);
  case WorkspaceSection::approvals:
    return Gtk::make_managed<ApprovalsView>(store_);
  case WorkspaceSection::connectors:
    return Gtk::make_managed<ConnectorsView>(store_);
  case WorkspaceSection::browser:
    return Gtk::make_managed<BrowserWorkspaceView>();
  case WorkspaceSection::security:
    return Gtk::make_managed<SecurityView>(store_, preferences_);
  case WorkspaceSection::pricing:
    return Gtk::make_managed<PricingView>(store_);
  }
  g_assert_not_reached();
}

bool DetailView::holdsFocus() {
  auto* root = get_root();
  auto* focus = root ? root->get_focus() : nullptr;
  return focus && (focus == this || focus->is_ancestor(*this));
}

} // namespace quorvel
