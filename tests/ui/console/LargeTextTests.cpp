#include "console/AgentsView.h"
#include "console/ApprovalsView.h"
#include "console/BrowserWorkspaceView.h"
#include "console/ConnectorsView.h"
#include "console/InspectorPanel.h"
#include "console/OverviewView.h"
#include "console/PricingView.h"
#include "console/RequestsView.h"
#include "console/SecurityView.h"
#include "console/SidebarView.h"
#include "support/TestWindow.h"
#include "support/TextChecks.h"
#include "support/TextScale.h"

namespace quorvel {
namespace {

using namespace quorvel::tests;
using ::testing::Combine;
using ::testing::IsEmpty;
using ::testing::Values;
using ::testing::ValuesIn;

struct Models {
  WorkspaceStore store;
  Preferences preferences{Glib::build_filename(Glib::get_user_config_dir(), "large-text", "preferences.ini")};
};

struct Screen {
  const char* name;
  Gtk::Widget* (*make)(Models& models);
};
constexpr Screen screens[] = {
    {"Overview", [](Models& m) -> Gtk::Widget* { return Gtk::make_managed<OverviewView>(m.store); }},
    {"Requests", [](Models& m) -> Gtk::Widget* { return Gtk::make_managed<RequestsView>(m.store); }},
    {"Approvals", [](Models& m) -> Gtk::Widget* { return Gtk::make_managed<ApprovalsView>(m.store); }},
    {"Agents", [](Models& m) -> Gtk::Widget* { return Gtk::make_managed<AgentsView>(m.store); }},
    {"Connectors", [](Models& m) -> Gtk::Widget* { return Gtk::make_managed<ConnectorsView>(m.store); }},
    {"Browser", [](Models&) -> Gtk::Widget* { return Gtk::make_managed<BrowserWorkspaceView>(); }},
    {"Trust",
     [](Models& m) -> Gtk::Widget* { return Gtk::make_managed<SecurityView>(m.store, m.preferences); }},
    {"Plans", [](Models& m) -> Gtk::Widget* { return Gtk::make_managed<PricingView>(m.store); }},
};

constexpr Screen sidebar[] = {
    {"Sidebar", [](Models& m) -> Gtk::Widget* { return Gtk::make_managed<SidebarView>(m.store); }}};
constexpr Screen inspector[] = {
    {"Inspector", [](Models& m) -> Gtk::Widget* { return Gtk::make_managed<InspectorPanel>(m.store); }}};

/// A screen, its width in points and the size of text.
class LargeTextTest : public ::testing::TestWithParam<std::tuple<Screen, int, double>> {};

TEST_P(LargeTextTest, NoTextIsCutAndNoneOverlapsAnother) {
  const auto& [screen, width, factor] = GetParam();
  const TextScale scale(factor);
  Models models;
  auto* view = screen.make(models);
  TestWindow window(*view, width);
  // With text as large as that the window's least width grows with what the screen needs.
  if (factor <= 1.5) {
    EXPECT_EQ(view->get_width(), width) << "the screen would stick out of its column";
  }
  EXPECT_THAT(textFaults(*view), IsEmpty());
}

using Case = std::tuple<Screen, int, double>;
std::string nameOf(const ::testing::TestParamInfo<Case>& info) {
  const auto& [screen, width, factor] = info.param;
  return screen.name + std::to_string(width) + "Points" + std::to_string(static_cast<int>(factor * 100)) +
         "Percent";
}
constexpr int widestCentre = 2560 - 272 - 320;
INSTANTIATE_TEST_SUITE_P(Screens, LargeTextTest,
                         Combine(ValuesIn(screens), Values(852, 952, 962, 1272, widestCentre),
                                 Values(1.0, 1.5, 2.0)),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(BetweenScreens, LargeTextTest,
                         Combine(ValuesIn(screens), Values(952), Values(1.25, 1.75)), nameOf);
INSTANTIATE_TEST_SUITE_P(Sidebar, LargeTextTest,
                         Combine(ValuesIn(sidebar), Values(272), ValuesIn(textFactors)), nameOf);
INSTANTIATE_TEST_SUITE_P(Inspector, LargeTextTest,
                         Combine(ValuesIn(inspector), Values(320), ValuesIn(textFactors)), nameOf);

} // namespace
} // namespace quorvel
