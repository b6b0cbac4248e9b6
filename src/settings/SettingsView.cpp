#include "settings/SettingsView.h"

#include "brand/ModelSwitch.h"
#include "brand/surfaces.h"
#include "brand/text.h"
#include "layout/Frame.h"
#include "layout/accessible.h"
#include "layout/stacks.h"
#include "observation/observe.h"

#include <array>
#include <gtkmm/gestureclick.h>

namespace quorvel {
namespace {

struct Toggle {
  PreferenceKey key;
  const char* title;
};

struct Section {
  const char* title;
  std::array<Toggle, 2> toggles;
};
constexpr std::array sections{
    Section{"Workspace",
            {{{PreferenceKey::showInspector, "Show inspector"},
              {PreferenceKey::dailyBriefEnabled, "Daily command brief"}}}},
    Section{"Approval gates",
            {{{PreferenceKey::requireApprovalForSpend, "Ad spend changes"},
              {PreferenceKey::requireApprovalForCustomerMessages, "Customer-facing messages"}}}},
};

} // namespace

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

  void show(bool isOn) { switch_.show(isOn); }

 private:
  Preferences& preferences_;
  PreferenceKey key_;
  ModelSwitch& switch_ = *Gtk::make_managed<ModelSwitch>([this](bool isOn) { preferences_.set(key_, isOn); });
};

SettingsView::SettingsView(Preferences& preferences) : preferences_(preferences) {
  auto* form = vstack(24, {});
  for (const auto& [title, toggles] : sections) {
    auto* heading = text(title, {.style = TextStyle::headline});
    auto* rows = vstack(0, {row(toggles[0].title, toggles[0].key), padded(16, 0, divider()),
                            row(toggles[1].title, toggles[1].key)});
    form->add({vstack(10, {padded(16, 0, heading), quorvelCard(rows, 0)})});
  }
  append(*Gtk::make_managed<Frame>(Frame::Size{.width = 520}, *padded(24, form)));
  observe(preferences, *this, &SettingsView::refresh);
}

Gtk::Widget* SettingsView::row(const char* title, PreferenceKey key) {
  auto* row = Gtk::make_managed<ToggleRow>(title, preferences_, key);
  rows_.emplace_back(key, row);
  return row;
}

void SettingsView::refresh() {
  for (const auto& [key, row] : rows_)
    row->show(preferences_.isOn(key));
}

} // namespace quorvel
