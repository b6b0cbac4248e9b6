#include "brand/QuorvelBrand.h"
#include "console/SecurityView.h"
#include "settings/SettingsView.h"
#include "support/Looks.h"
#include "support/RealInput.h"
#include "support/TemporaryFolder.h"
#include "support/TestWindow.h"
#include "support/TextChecks.h"
#include "support/TextScale.h"

#include <filesystem>
#include <fstream>

namespace quorvel {
namespace {

using namespace quorvel::tests;
using ::testing::ElementsAre;
namespace fs = std::filesystem;

struct SettingsViewTest : ::testing::Test {
  SettingsViewTest() {
    preferences = std::make_unique<Preferences>(file);
    view = Gtk::make_managed<SettingsView>(*preferences);
    window = std::make_unique<TestWindow>(*view, 520);
  }

  std::string written() const {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  Gtk::Widget& row(const Glib::ustring& title) { return *labelled(*view, title)->get_parent(); }
  Gtk::Switch& toggle(const Glib::ustring& title) { return *all<Gtk::Switch>(row(title)).front(); }

  /// What Space and Return do on the switch.
  void flip(const Glib::ustring& title) { gtk_widget_activate(GTK_WIDGET(toggle(title).gobj())); }
  /// A switch that follows its value slides there.
  static bool comesToRest(Gtk::Switch& moving, bool isOn) {
    return eventually([&] { return moving.get_active() == isOn; });
  }

  /// A press of the pointer on the row of this title that is let go at this place of the row.
  void releaseOn(const Glib::ustring& title, double x, double y) {
    const auto controllers = row(title).observe_controllers();
    for (guint i = 0; i < controllers->get_n_items(); ++i)
      if (const auto click = std::dynamic_pointer_cast<Gtk::GestureClick>(controllers->get_object(i)))
        g_signal_emit_by_name(click->gobj(), "released", 1, x, y);
  }

  const TemporaryFolder folder;
  const fs::path file = folder.path / "preferences.ini";
  std::unique_ptr<Preferences> preferences;
  SettingsView* view;
  std::unique_ptr<TestWindow> window;
};

const std::vector<std::pair<const char*, PreferenceKey>> toggles{
    {"Show inspector", PreferenceKey::showInspector},
    {"Daily command brief", PreferenceKey::dailyBriefEnabled},
    {"Ad spend changes", PreferenceKey::requireApprovalForSpend},
    {"Customer-facing messages", PreferenceKey::requireApprovalForCustomerMessages},
};

TEST_F(SettingsViewTest, TheWorkspaceSectionComesFirstAboveTheApprovalGates) {
  EXPECT_THAT(texts(*view), ElementsAre("Workspace", "Show inspector", "Daily command brief",
                                        "Approval gates", "Ad spend changes", "Customer-facing messages"));
  int lowest = 0;
  for (const auto& text : texts(*view)) {
    const int top = boundsIn(*view, *labelled(*view, text)).get_y();
    EXPECT_GT(top, lowest) << text;
    lowest = top;
  }
}

TEST_F(SettingsViewTest, OnAFreshAccountAllFourSwitchesAreOn) {
  const auto switches = all<Gtk::Switch>(*view);
  EXPECT_EQ(switches.size(), 4u);
  for (auto* each : switches)
    EXPECT_TRUE(each->get_active());
  EXPECT_FALSE(fs::exists(file));
}

TEST_F(SettingsViewTest, EachSwitchIsWrittenUnderItsKeyAtOnce) {
  for (const auto& [title, key] : toggles) {
    flip(title);
    EXPECT_FALSE(preferences->isOn(key)) << title;
    EXPECT_THAT(written(), ::testing::HasSubstr(std::string(rawValue(key)) + "=false\n"));
  }
}

TEST_F(SettingsViewTest, SwitchingShowInspectorOffChangesNothingElse) {
  flip("Show inspector");
  EXPECT_EQ(written(), "[Preferences]\nQuorvel.showInspector=false\n");
  for (const auto& [title, key] : toggles)
    EXPECT_TRUE(comesToRest(toggle(title), key != PreferenceKey::showInspector)) << title;
}

TEST_F(SettingsViewTest, ASwitchFollowsAChangeMadeElsewhere) {
  for (const auto& [title, key] : toggles) {
    for (const bool isOn : {false, true}) {
      preferences->set(key, isOn);
      EXPECT_TRUE(comesToRest(toggle(title), isOn)) << title;
    }
  }
}

TEST_F(SettingsViewTest, ASwitchFollowsAChangeMadeByAnotherProgram) {
  std::ofstream(file) << "[Preferences]\nQuorvel.requireApprovalForSpend=false\n";
  EXPECT_TRUE(comesToRest(toggle("Ad spend changes"), false));
  fs::remove(file);
  EXPECT_TRUE(comesToRest(toggle("Ad spend changes"), true));
}

TEST_F(SettingsViewTest, TwoViewsOfTheSamePreferencesAgree) {
  auto* other = Gtk::make_managed<SettingsView>(*preferences);
  TestWindow otherWindow(*other, 520);
  flip("Ad spend changes");
  EXPECT_TRUE(comesToRest(*all<Gtk::Switch>(*other)[2], false));
}

TEST_F(SettingsViewTest, AClickOfThePointerOnATitleFlipsTheSwitchBesideIt) {
  for (const auto& [title, key] : toggles) {
    clickOn(*labelled(*view, title));
    EXPECT_TRUE(eventually([&, preference = key] { return !preferences->isOn(preference); })) << title;
  }
}

TEST_F(SettingsViewTest, WhatTheTrustScreenSharesIsTheSameInBothWhereverItIsFlipped) {
  WorkspaceStore store;
  Preferences others(file);
  auto* trust = Gtk::make_managed<SecurityView>(store, others);
  TestWindow trustWindow(*trust, 900);
  auto& here = toggle("Ad spend changes");
  auto& there = *all<Gtk::Switch>(*trust).front();
  gtk_widget_activate(GTK_WIDGET(here.gobj()));
  EXPECT_TRUE(comesToRest(there, false));
  gtk_widget_activate(GTK_WIDGET(there.gobj()));
  EXPECT_TRUE(comesToRest(here, true));
}

TEST_F(SettingsViewTest, AClickAnywhereOnARowFlipsItsSwitch) {
  for (const auto& [title, key] : toggles) {
    releaseOn(title, 2, 2);
    EXPECT_FALSE(preferences->isOn(key)) << title;
    releaseOn(title, 200, 20);
    EXPECT_TRUE(preferences->isOn(key)) << title;
  }
}

TEST_F(SettingsViewTest, APressThatIsLetGoBesideTheRowFlipsNothing) {
  releaseOn("Show inspector", 200, 200);
  EXPECT_TRUE(preferences->isOn(PreferenceKey::showInspector));
}

TEST_F(SettingsViewTest, ASwitchIsFlippedByItsActivationAsSpaceAndReturnDo) {
  auto& inspector = toggle("Show inspector");
  inspector.grab_focus();
  EXPECT_TRUE(inspector.is_focus());
  gtk_widget_activate(GTK_WIDGET(inspector.gobj()));
  EXPECT_TRUE(eventually([&] { return !preferences->isOn(PreferenceKey::showInspector); }));
  EXPECT_TRUE(inspector.is_focus());
}

TEST_F(SettingsViewTest, ASwitchIsNamedByItsRowsTitle) {
  for (const auto& [title, key] : toggles) {
    char* const otherName = gtk_test_accessible_check_property(GTK_ACCESSIBLE(toggle(title).gobj()),
                                                               GTK_ACCESSIBLE_PROPERTY_LABEL, title);
    EXPECT_STREQ(otherName, nullptr);
    g_free(otherName);
  }
}

TEST_F(SettingsViewTest, TheFocusIsShownAroundTheSwitchAloneAndNotAroundItsContainers) {
  auto& inspector = toggle("Show inspector");
  inspector.grab_focus();
  window->set_focus_visible(true);
  const auto switchBounds = boundsIn(*view, inspector);
  const int middle = switchBounds.get_y() + switchBounds.get_height() / 2;
  EXPECT_TRUE(eventually([&] {
    return ::testing::Value(window->pixel(switchBounds.get_x() - 2, middle), IsColor(QuorvelBrand::blue));
  })) << "the theme lets the outline grow";
  EXPECT_THAT(window->pixel(22, middle), IsColor(QuorvelBrand::background));
}

TEST_F(SettingsViewTest, ItsLookIsTheDrawings) {
  const std::string look = R"(
padded 24
column 24
column 10
padded 16 0
"Workspace" 14 700 white
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
column 0
inset 16 10
row 16
"Show inspector" 14 400 white
ground green capsule
switch
padded 16 0
ground white/0.115
inset 16 10
row 16
"Daily command brief" 14 400 white
ground green capsule
switch
column 10
padded 16 0
"Approval gates" 14 700 white
shadow black/0.22 0 12 16, ground panel round 10, line white/0.115 round 10
column 0
inset 16 10
row 16
"Ad spend changes" 14 400 white
ground green capsule
switch
padded 16 0
ground white/0.115
inset 16 10
row 16
"Customer-facing messages" 14 400 white
ground green capsule
switch
)";
  if (!comesToLook(*view, look)) {
    EXPECT_EQ(lookOf(*view), look);
  }
}

TEST_F(SettingsViewTest, InLargeTextNothingIsCutAndNothingOverlaps) {
  for (const double factor : textFactors) {
    SCOPED_TRACE(factor);
    window.reset();
    const TextScale large(factor);
    view = Gtk::make_managed<SettingsView>(*preferences);
    window = std::make_unique<TestWindow>(*view, 520);
    EXPECT_THAT(textFaults(*view), ::testing::IsEmpty());
    EXPECT_EQ(view->get_width(), 520);
  }
}

TEST_F(SettingsViewTest, TheFormIs520PointsWideWith24PointsOfPadding) {
  EXPECT_EQ(view->get_width(), 520);
  EXPECT_EQ(boundsIn(*view, *labelled(*view, "Workspace")).get_y(), 24);
  for (const auto& [title, key] : toggles) {
    const auto bounds = boundsIn(*view, row(title));
    EXPECT_EQ(bounds.get_x(), 24) << title;
    EXPECT_EQ(bounds.get_width(), 472) << title;
  }
  const auto last = boundsIn(*view, row("Customer-facing messages"));
  EXPECT_EQ(view->get_height() - last.get_y() - last.get_height(), 24);
}

} // namespace
} // namespace quorvel
