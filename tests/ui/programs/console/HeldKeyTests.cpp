#include "programs/console/ConsoleColumns.h"

#include "console/DetailView.h"
#include "support/RealInput.h"
#include "support/TemporaryFolder.h"
#include "support/TestWindow.h"

namespace quorvel {
namespace {

using namespace quorvel::tests;

/// All of the console that a press can change.
struct State {
  WorkspaceSection section;
  std::size_t requests, entries;
  std::vector<ApprovalState> gates;
  std::vector<bool> connections, switches;
  bool operator==(const State&) const = default;
};

/// The console on one of its sections, fresh.
class Console {
 public:
  explicit Console(WorkspaceSection section) {
    store_.selectedSection = section;
    drawFrame(columns_);
  }

  /// Whatever a key can press: in the sidebar or, where there is one, on the screen.
  std::vector<Gtk::Widget*> controls() {
    std::vector<Gtk::Widget*> found;
    for (auto* widget : all<Gtk::Widget>(columns_))
      if ((dynamic_cast<Gtk::Button*>(widget) || dynamic_cast<Gtk::Switch*>(widget)) &&
          widget->is_sensitive() && widget->get_mapped())
        found.push_back(widget);
    return found;
  }
  Gtk::Button& button(const char* name) {
    for (auto* button : all<Gtk::Button>(*all<DetailView>(columns_).front()))
      if (button->is_sensitive() && labelled(*button, name))
        return *button;
    throw std::runtime_error(name);
  }
  Gtk::Button& disabledButton(const char* name) {
    for (auto* button : all<Gtk::Button>(*all<DetailView>(columns_).front()))
      if (!button->is_sensitive() && labelled(*button, name))
        return *button;
    throw std::runtime_error(name);
  }
  Gtk::Label& label(const char* text) { return *labelled(*all<DetailView>(columns_).front(), text); }
  Gtk::Entry& draft() { return *all<Gtk::Entry>(columns_).front(); }
  State state() {
    drawFrame(columns_);
    State state{store_.selectedSection, store_.requests->size(), store_.activity->size(), {}, {}, {}};
    for (const auto& gate : *store_.approvals)
      state.gates.push_back(gate.state);
    for (const auto& connector : *store_.connectors)
      state.connections.push_back(connector.isConnected);
    for (const auto key : allCases<PreferenceKey>())
      state.switches.push_back(preferences_.isOn(key));
    return state;
  }
  void hold(const std::string& key) { holdKey(key, window_); }

 private:
  TemporaryFolder folder_;
  WorkspaceStore store_;
  Preferences preferences_{folder_.path / "preferences.ini"};
  ConsoleColumns columns_{store_, preferences_};
  TestWindow window_{columns_, 1180, 1100};
};

State afterOnePress(WorkspaceSection section, std::size_t index) {
  Console console(section);
  auto* control = console.controls().at(index);
  if (auto* button = dynamic_cast<Gtk::Button*>(control))
    click(*button);
  else
    gtk_widget_activate(control->gobj());
  return console.state();
}

struct Hold {
  WorkspaceSection section;
  std::string key;
  friend std::ostream& operator<<(std::ostream& out, const Hold& hold) {
    return out << hold.key << " in " << rawValue(hold.section);
  }
};

std::vector<Hold> everywhere() {
  std::vector<Hold> holds;
  for (const auto section : allCases<WorkspaceSection>())
    holds.push_back({section, "Return"});
  holds.push_back({WorkspaceSection::approvals, "space"});
  return holds;
}

class HeldKeyTest : public ::testing::TestWithParam<Hold> {};

TEST_P(HeldKeyTest, ActsOnceOnEveryControl) {
  const auto& [section, key] = GetParam();
  constexpr std::size_t sidebarControls = 9;
  const auto count = Console(section).controls().size();
  for (auto i = section == WorkspaceSection::overview ? 0 : sidebarControls; i < count; ++i) {
    Console console(section);
    focusOn(*console.controls().at(i));
    console.hold(key);
    EXPECT_EQ(console.state(), afterOnePress(section, i)) << "control " << i << " of " << count;
  }
}

INSTANTIATE_TEST_SUITE_P(Console, HeldKeyTest, ::testing::ValuesIn(everywhere()), [](const auto& test) {
  return std::string(rawValue(test.param.section)) + "_" + test.param.key;
});

/// Strikes Return again and again, each time when the strike before has taken effect.
void strikeThrice(Console& console, const char* button) {
  focusOn(console.button(button));
  for (int i = 0; i < 3; ++i) {
    strikeKey("Return");
    console.hold("h"); // a key that does nothing, for as long as a press takes
  }
}

TEST(RepeatedKey, DecidesOneGateAndNoOther) {
  for (const auto& [button, decided] :
       {std::pair{"Approve", ApprovalState::approved}, std::pair{"Pause", ApprovalState::paused}}) {
    Console console(WorkspaceSection::approvals);
    auto expected = console.state();
    expected.gates.front() = decided;
    ++expected.entries;
    strikeThrice(console, button);
    EXPECT_EQ(console.state(), expected) << button;
  }
}

TEST(RepeatedKey, PressesNothingOnTheScreenThatItTurnedTo) {
  for (const auto& [button, section] : {std::pair{"Review Queue", WorkspaceSection::approvals},
                                        std::pair{"Connectors", WorkspaceSection::connectors}}) {
    Console console(WorkspaceSection::overview);
    auto expected = console.state();
    expected.section = section;
    strikeThrice(console, button);
    EXPECT_EQ(console.state(), expected) << button;
  }
}

TEST(RealPointer, OnReviewOfTheSnippetDoesNothing) {
  Console console(WorkspaceSection::overview);
  auto expected = console.state();
  clickOn(console.label("Review"));
  clickOn(console.button("Review Queue")); // the one before it has had its effect when this one has
  expected.section = WorkspaceSection::approvals;
  EXPECT_TRUE(eventually([&] { return console.state().section == WorkspaceSection::approvals; }));
  EXPECT_EQ(console.state(), expected);
}

TEST(RealInput, OnTheButtonsOfADecidedGateDoesNothing) {
  Console console(WorkspaceSection::approvals);
  auto expected = console.state();
  const auto isGate = [&](std::size_t index, ApprovalState state) {
    return eventually([&] { return console.state().gates.at(index) == state; });
  };
  clickOn(console.button("Approve"));
  ASSERT_TRUE(isGate(0, ApprovalState::approved));
  for (const char* name : {"Pause", "Approve"}) {
    auto& button = console.disabledButton(name);
    EXPECT_FALSE(button.grab_focus());
    for (const char* key : {"Return", "space"})
      strikeKey(key);
    clickOn(button);
  }
  clickOn(console.button("Pause"));
  ASSERT_TRUE(isGate(1, ApprovalState::paused));
  expected.gates = {ApprovalState::approved, ApprovalState::paused, ApprovalState::paused};
  expected.entries += 2;
  EXPECT_EQ(console.state(), expected) << "the two decisions and nothing else";
}

TEST(HeldKey, IsRepeatedInATextAsEver) {
  Console console(WorkspaceSection::overview);
  auto& draft = console.draft();
  draft.set_text("");
  focusOn(draft);
  console.hold("space");
  EXPECT_GT(draft.get_text().size(), 5U);
}

} // namespace
} // namespace quorvel
