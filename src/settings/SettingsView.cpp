#include "settings/SettingsView.h"

#include "brand/ModelSwitch.h"
#include "brand/buttons.h"
#include "brand/card.h"
#include "brand/text.h"
#include "layout/Frame.h"
#include "layout/stacks.h"
#include "observation/observe.h"

#include <gtkmm/gestureclick.h>

namespace quorvel {

/// A title and the switch of one preference. A click anywhere on the row flips it.
class SettingsView::ToggleRow : public HStack {
 public:
  ToggleRow(const Glib::ustring& title, Preferences& preferences, PreferenceKey key)
      : HStack(16), preferences_(preferences), key_(key) {
    add_css_class("toggle-row");
    setAccessibleName(switch_, title);
    add({stretched(text(title, {})), &switch_});

    auto click = Gtk::GestureClick::create();
    click->signal_released().connect([this](int, double x, double y) {
      if (contains(x, y))
        preferences_.set(key_, !preferences_.isOn(key_));
    });
    add_controller(click);
  }

  void refresh() { switch_.show(preferences_.isOn(key_)); }

 private:
  Preferences& preferences_;
  PreferenceKey key_;
  ModelSwitch& switch_ = *Gtk::make_managed<ModelSwitch>([this](bool isOn) { preferences_.set(key_, isOn); });
};

namespace {

Gtk::Widget* section(const Glib::ustring& title, Gtk::Widget* firstRow, Gtk::Widget* secondRow) {
  auto* heading = text(title, {.style = TextStyle::headline});
  auto* rows = vstack(0, {stretched(firstRow), padded(16, 0, divider()), stretched(secondRow)});
  return stretched(vstack(10, {padded(16, 0, heading), quorvelCard(stretched(rows), 0)}));
}

} // namespace

SettingsView::SettingsView(Preferences& preferences)
    : requireApprovalForSpend_(*Gtk::make_managed<ToggleRow>("Ad spend changes", preferences,
                                                             PreferenceKey::requireApprovalForSpend)),
      requireApprovalForCustomerMessages_(*Gtk::make_managed<ToggleRow>(
          "Customer-facing messages", preferences, PreferenceKey::requireApprovalForCustomerMessages)),
      showInspector_(
          *Gtk::make_managed<ToggleRow>("Show inspector", preferences, PreferenceKey::showInspector)),
      dailyBriefEnabled_(*Gtk::make_managed<ToggleRow>("Daily command brief", preferences,
                                                       PreferenceKey::dailyBriefEnabled)) {
  auto* form = vstack(
      24, {section("Workspace", &showInspector_, &dailyBriefEnabled_),
           section("Approval gates", &requireApprovalForSpend_, &requireApprovalForCustomerMessages_)});
  append(*Gtk::make_managed<Frame>(Frame::Size{.width = 520}, *padded(24, form)));
  observe(preferences, *this, &SettingsView::refresh);
}

void SettingsView::refresh() {
  for (auto* row : {&requireApprovalForSpend_, &requireApprovalForCustomerMessages_, &showInspector_,
                    &dailyBriefEnabled_})
    row->refresh();
}

} // namespace quorvel
