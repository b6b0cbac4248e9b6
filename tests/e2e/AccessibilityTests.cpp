#include "e2e/stage/ClientTest.h"

#include <set>

namespace quorvel::e2e {
namespace {

bool isControl(const Accessible& object) {
  static const std::set<AtspiRole> controls = {
      ATSPI_ROLE_PUSH_BUTTON,  ATSPI_ROLE_TOGGLE_BUTTON, ATSPI_ROLE_CHECK_BOX, ATSPI_ROLE_ENTRY,
      ATSPI_ROLE_TEXT,         ATSPI_ROLE_MENU_ITEM,     ATSPI_ROLE_MENU,      ATSPI_ROLE_MENU_BAR,
      ATSPI_ROLE_PROGRESS_BAR, ATSPI_ROLE_SCROLL_PANE,   ATSPI_ROLE_SLIDER};
  return controls.contains(object.role()) || object.is(ATSPI_STATE_FOCUSABLE);
}

bool isNamedAfterItsClass(const std::string& name) {
  return name.starts_with("gtkmm__") || name.starts_with("Gtk") || name.starts_with("WebKitWeb");
}

/// What somebody who hears the window would stumble over. What is in the page is its author's and the
/// engine's.
std::vector<std::string> flaws(const Accessible& root) {
  std::vector<std::string> found;
  for (const auto& object : root.all([](const auto& each) { return each.name() != "Page"; })) {
    const auto name = object.name();
    if (isNamedAfterItsClass(name))
      found.push_back(name + " is announced");
    if (object.role() == ATSPI_ROLE_IMAGE || object.role() == ATSPI_ROLE_ICON)
      found.push_back("the picture \"" + name + "\" is announced");
    if (name.empty() && isControl(object))
      found.push_back("a control of role " + std::to_string(object.role()) + " has no name");
    if (object.role() == ATSPI_ROLE_PROGRESS_BAR && !object.value())
      found.push_back(name + " has no value");
  }
  return found;
}

class AccessibilityTest : public ClientTest {};

TEST_F(AccessibilityTest, EveryWindowOfTheClientCanBeHeard) {
  start();
  for (const auto* control : {"Main menu", "About"})
    client().press(control);
  EXPECT_TRUE(eventually([&] { return client().windowWithKeys(); }, Eq("About Quorvel")));
  for (const auto* keys : {"ctrl+comma", "ctrl+question"})
    client().type(keys);
  EXPECT_TRUE(eventually([&] { return client().windows(); }, SizeIs(4)));
  for (const auto& window : client().windows())
    EXPECT_THAT(flaws(window), IsEmpty()) << window.name() << "\n" << describe(window);
}

/// The console in the place of the client, and on one of its sections.
class ConsoleAccessibilityTest : public ClientTest, public testing::WithParamInterface<std::string> {
 protected:
  ConsoleAccessibilityTest() {
    EXPECT_TRUE(eventually([&] { return find(GetParam(), ATSPI_ROLE_PUSH_BUTTON).has_value(); }));
    EXPECT_TRUE(find(GetParam(), ATSPI_ROLE_PUSH_BUTTON)->activate());
    EXPECT_TRUE(eventually([&] { return isGroup(GetParam()); }));
  }
  std::optional<Accessible> application() const { return Accessible::ofProcess(console_.id()); }
  std::vector<Accessible> objects() const {
    const auto found = application();
    return found ? found->all() : std::vector<Accessible>();
  }
  /// Newer toolkits have a role of its own for it.
  bool isGroup(const std::string& name) const {
    return find(name, ATSPI_ROLE_PANEL) || find(name, ATSPI_ROLE_GROUPING);
  }
  std::optional<Accessible> find(const std::string& name, AtspiRole role) const {
    const auto found = application();
    return found ? found->find(role, name) : std::nullopt;
  }
  std::vector<std::string> names(AtspiRole role) const {
    std::vector<std::string> names;
    for (const auto& object : objects())
      if (object.role() == role)
        names.push_back(object.name());
    return names;
  }

 private:
  ChildProcess console_{{QUORVEL_CONSOLE}, {}};
};

TEST_P(ConsoleAccessibilityTest, CanBeHeard) {
  EXPECT_THAT(flaws(*application()), IsEmpty()) << describe(*application());
}

INSTANTIATE_TEST_SUITE_P(Section, ConsoleAccessibilityTest,
                         testing::Values("Command Center", "Agent Team", "Live Requests", "Approvals",
                                         "Connectors", "Browser", "Trust", "Plans"),
                         [](const auto& each) {
                           auto name = each.param;
                           std::erase(name, ' ');
                           return name;
                         });

using ConsoleWindowsAccessibilityTest = ConsoleAccessibilityTest;

TEST_P(ConsoleWindowsAccessibilityTest, AllCanBeHeard) {
  const auto strikeInMain = [](const std::string& keys) {
    outputOf({"xdotool", "windowfocus", "--sync", windowTitled("Quorvel Console"), "key", keys});
  };
  strikeInMain("ctrl+question");
  ASSERT_TRUE(eventually([] { return windowTitled("Keyboard Shortcuts"); }, Not(IsEmpty())));
  strikeInMain("F10");
  ASSERT_TRUE(eventually([&] { return names(ATSPI_ROLE_MENU_ITEM); }, Contains("About")));
  outputOf({"xdotool", "key", "Down", "key", "Return"});
  ASSERT_TRUE(eventually([] { return windowTitled("About Quorvel Console"); }, Not(IsEmpty())));
  ASSERT_TRUE(eventually([&] { return application()->children(); }, SizeIs(3)));
  EXPECT_THAT(flaws(*application()), IsEmpty()) << describe(*application());
}

INSTANTIATE_TEST_SUITE_P(Section, ConsoleWindowsAccessibilityTest, testing::Values("Command Center"),
                         [](const auto&) { return "CommandCenter"; });

using LiveRequestsAccessibilityTest = ConsoleAccessibilityTest;

TEST_P(LiveRequestsAccessibilityTest, StepsSayWhetherTheyAreDone) {
  EXPECT_THAT(names(ATSPI_ROLE_LABEL), AllOf(Contains("Found, done"), Contains("Done, not done yet")));
  EXPECT_THAT(names(ATSPI_ROLE_PROGRESS_BAR), testing::Each(testing::StartsWith("Progress of ")));
}

INSTANTIATE_TEST_SUITE_P(Section, LiveRequestsAccessibilityTest, testing::Values("Live Requests"),
                         [](const auto&) { return "LiveRequests"; });

using PlansAccessibilityTest = ConsoleAccessibilityTest;

TEST_P(PlansAccessibilityTest, EachPlanIsSelectedByAButtonOfItsName) {
  auto buttons = names(ATSPI_ROLE_PUSH_BUTTON);
  std::erase_if(buttons, [](const auto& name) { return !name.starts_with("Select Plan"); });
  EXPECT_THAT(buttons, SizeIs(3));
  EXPECT_THAT(std::set(buttons.begin(), buttons.end()), SizeIs(3));
}

INSTANTIATE_TEST_SUITE_P(Section, PlansAccessibilityTest, testing::Values("Plans"),
                         [](const auto&) { return "Plans"; });

} // namespace
} // namespace quorvel::e2e
