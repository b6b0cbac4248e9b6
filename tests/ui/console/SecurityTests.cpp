#include "console/SecurityView.h"

#include "brand/QuorvelBrand.h"
#include "brand/StatusPill.h"
#include "support/TemporaryFolder.h"
#include "support/TestWindow.h"

namespace quorvel {
namespace {

using namespace quorvel::tests;
using ::testing::ElementsAre;

class SecurityTest : public ::testing::Test {
 protected:
  Gtk::Widget& columns() { return *view_.get_last_child(); }
  Gtk::Widget& toggles() { return *columns().get_first_child()->get_first_child(); }
  Gtk::Widget& profile() { return *columns().get_last_child(); }
  /// The card of the switch with this title.
  Gtk::Widget& toggle(const char* title) {
    for (auto* card = toggles().get_first_child(); card; card = card->get_next_sibling())
      if (labelled(*card, title))
        return *card;
    throw std::runtime_error(title);
  }
  Gtk::Switch& switchOf(const char* title) { return *all<Gtk::Switch>(toggle(title)).front(); }
  std::string iconOf(const char* title) { return iconsIn(toggle(title)).front(); }
  std::vector<std::string> iconsIn(Gtk::Widget& root) {
    std::vector<std::string> names;
    for (auto* image : all<Gtk::Image>(root))
      names.push_back(image->get_icon_name());
    return names;
  }
  void flip(const char* title) {
    auto& target = switchOf(title);
    const bool before = target.get_state();
    gtk_widget_activate(GTK_WIDGET(target.gobj()));
    ASSERT_TRUE(eventually([&] { return target.get_state() != before; }));
  }
  bool isStoredOn(PreferenceKey key) { return Preferences(file_).isOn(key); }
  void setState(std::size_t index, ApprovalState state) {
    store_.approvals.update([&](auto& list) { list[index].state = state; });
    drawFrame(view_);
  }

  TemporaryFolder folder_;
  std::string file_ = folder_.path / "quorvel" / "preferences.ini";
  WorkspaceStore store_;
  Preferences preferences_{file_};
  SecurityView view_{store_, preferences_};
  TestWindow window_{view_, 852};
};

constexpr const char* spend = "Ad spend changes";
constexpr const char* messages = "Customer-facing messages";
constexpr const char* bookings = "Calendar bookings";
constexpr const char* history = "Activity history";
constexpr const char* closedShield = "lock.shield.fill.600-symbolic";
constexpr const char* openLock = "lock.open.fill.600-symbolic";

TEST_F(SecurityTest, ShowsTheHeaderTheFourSwitchesAndTheApprovals) {
  EXPECT_THAT(texts(*view_.get_first_child()),
              ElementsAre("TRUST CONTROLS", "Visible work, explicit approval",
                          "Quorvel separates normal drafting from sensitive actions and records the source "
                          "context used by helper agents."));
  EXPECT_THAT(texts(toggles()), ElementsAre(spend, "Budget moves and campaign edits", messages,
                                            "Email, chat, SMS, and support replies", bookings,
                                            "Appointments and callback holds", history,
                                            "Saved notes, drafts, and decision events"));
  EXPECT_THAT(texts(profile()),
              ElementsAre("Current approval profile", "Send three delayed order replies", "Customer-facing",
                          "Needs review", "Shift $240 from broad audience to retargeting", "Ad spend",
                          "Needs review", "Book two consultation callbacks", "Calendar", "Paused"));
}

TEST_F(SecurityTest, OnAFreshAccountAllSwitchesAreOnAndAllIconsAreClosedShields) {
  for (const auto* title : {spend, messages, bookings, history}) {
    EXPECT_TRUE(switchOf(title).get_active()) << title;
    EXPECT_EQ(iconOf(title), closedShield) << title;
  }
}

TEST_F(SecurityTest, EachSwitchWritesItsOwnKeyAtOnceAndItsIconFollows) {
  const std::pair<const char*, PreferenceKey> gates[] = {
      {spend, PreferenceKey::requireApprovalForSpend},
      {messages, PreferenceKey::requireApprovalForCustomerMessages},
      {bookings, PreferenceKey::requireApprovalForBookings},
      {history, PreferenceKey::keepActivityHistory}};
  for (const auto& [title, key] : gates) {
    flip(title);
    EXPECT_FALSE(isStoredOn(key)) << title;
    EXPECT_EQ(iconOf(title), openLock) << title;
    for (const auto& [otherTitle, other] : gates)
      EXPECT_EQ(isStoredOn(other), other != key) << otherTitle;
    flip(title);
    EXPECT_TRUE(isStoredOn(key)) << title;
    EXPECT_EQ(iconOf(title), closedShield) << title;
  }
}

TEST_F(SecurityTest, AFlipInAnotherWindowIsShownHere) {
  Preferences elsewhere(file_);
  elsewhere.set(PreferenceKey::requireApprovalForSpend, false);
  ASSERT_TRUE(eventually([&] { return !switchOf(spend).get_state(); }));
  EXPECT_EQ(iconOf(spend), openLock);
  elsewhere.set(PreferenceKey::requireApprovalForSpend, true);
  ASSERT_TRUE(eventually([&] { return switchOf(spend).get_state(); }));
  EXPECT_EQ(iconOf(spend), closedShield);
}

TEST_F(SecurityTest, AFlipInAnotherProgramIsShownHere) {
  const std::vector<std::string> program{PREFERENCES_PEER, file_, "flip", "Quorvel.keepActivityHistory", "1"};
  std::string said;
  Glib::spawn_sync("", program, Glib::SpawnFlags::DEFAULT, {}, &said);
  ASSERT_EQ(said, "off\n");
  ASSERT_TRUE(eventually([&] { return !switchOf(history).get_state(); }));
  EXPECT_EQ(iconOf(history), openLock);
}

TEST_F(SecurityTest, AFlipHereReachesAnotherWindow) {
  const Preferences elsewhere(file_);
  flip(messages);
  EXPECT_TRUE(eventually([&] { return !elsewhere.isOn(PreferenceKey::requireApprovalForCustomerMessages); }));
}

TEST_F(SecurityTest, TurningTheActivityHistoryOffChangesOnlyTheSwitchAndItsIcon) {
  const auto activity = *store_.activity;
  const auto before = texts(view_);
  flip(history);
  EXPECT_EQ(*store_.activity, activity);
  EXPECT_EQ(texts(view_), before);
  for (const auto* title : {spend, messages, bookings})
    EXPECT_EQ(iconOf(title), closedShield) << title;
  EXPECT_EQ(iconOf(history), openLock);
}

TEST_F(SecurityTest, TheApprovalListDoesNotReactToTheSwitches) {
  const auto words = texts(profile());
  const auto icons = iconsIn(profile());
  for (const auto* title : {spend, messages, bookings, history})
    flip(title);
  EXPECT_EQ(texts(profile()), words);
  EXPECT_EQ(iconsIn(profile()), icons);
}

TEST_F(SecurityTest, AnApprovedApprovalGetsTheCheckMarkAndThePillOfItsState) {
  store_.approve(store_.approvals->front());
  drawFrame(view_);
  auto* icon = all<Gtk::Image>(profile()).front();
  EXPECT_EQ(icon->get_icon_name(), "checkmark.circle.fill-symbolic");
  EXPECT_THAT(inkOf(*icon), IsColor(QuorvelBrand::green));
  auto* pill = all<StatusPill>(profile()).front();
  EXPECT_THAT(texts(*pill), ElementsAre("Approved"));
  EXPECT_TRUE(pill->has_css_class("tone-green"));
  EXPECT_FALSE(pill->has_css_class("pill-prominent"));
}

TEST_F(SecurityTest, APausedApprovalKeepsTheLock) {
  setState(0, ApprovalState::paused);
  auto* icon = all<Gtk::Image>(profile()).front();
  EXPECT_EQ(icon->get_icon_name(), "lock.fill-symbolic");
  EXPECT_THAT(inkOf(*icon), IsColor(color(AccentTone::slate)));
  EXPECT_THAT(texts(*all<StatusPill>(profile()).front()), ElementsAre("Paused"));
}

TEST_F(SecurityTest, WithAnEmptyListTheCardShowsOnlyItsHeading) {
  store_.approvals = RecordList<ApprovalItem>{};
  drawFrame(view_);
  EXPECT_THAT(texts(profile()), ElementsAre("Current approval profile"));
  EXPECT_EQ(profile().get_height(), labelled(profile(), "Current approval profile")->get_height() + 2 * 18);
  const auto& fresh = SampleData::approvals();
  store_.approvals = fresh;
  drawFrame(view_);
  EXPECT_EQ(all<StatusPill>(profile()).size(), fresh.size());
}

TEST(EmptySecurity, AListThatWasEmptyFromTheStartAppearsWhenItIsNoLonger) {
  TemporaryFolder folder;
  Preferences preferences(folder.path / "preferences.ini");
  WorkspaceStore store;
  const auto approvals = *store.approvals;
  store.approvals = {};
  SecurityView view{store, preferences};
  TestWindow stage{view, 852};
  store.approvals = approvals;
  drawFrame(view);
  EXPECT_NE(labelled(view, approvals.front().title), nullptr);
  EXPECT_EQ(all<StatusPill>(view).size(), approvals.size());
}

TEST_F(SecurityTest, EverySwitchIsNamedByTheTitleOfItsRow) {
  for (const auto* title : {spend, messages, bookings, history})
    EXPECT_TRUE(hasAccessibleName(switchOf(title), title)) << title;
}

TEST_F(SecurityTest, TheIconsHaveTheTonesOfTheirGatesOnTilesOf42Points) {
  const std::pair<const char*, AccentTone> tones[] = {{spend, AccentTone::gold},
                                                      {messages, AccentTone::green},
                                                      {bookings, AccentTone::blue},
                                                      {history, AccentTone::slate}};
  for (const auto& [title, tone] : tones) {
    auto* icon = all<Gtk::Image>(toggle(title)).front();
    EXPECT_THAT(inkOf(*icon), IsColor(color(tone))) << title;
    EXPECT_EQ(icon->get_parent()->get_width(), 42);
    EXPECT_EQ(icon->get_parent()->get_height(), 42);
  }
}

TEST_F(SecurityTest, TheColumnsKeepTheirLeastWidths) {
  window_.resize(600);
  EXPECT_EQ(toggles().get_width(), 420);
  EXPECT_EQ(profile().get_width(), 340 + 2 * 18);
  EXPECT_EQ(boundsIn(columns(), profile()).get_x(), 420 + 18);
  EXPECT_EQ(boundsIn(columns(), profile()).get_y(), 0);
}

} // namespace
} // namespace quorvel
