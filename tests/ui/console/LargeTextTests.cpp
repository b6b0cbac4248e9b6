#include "AgentsView.h"
#include "ApprovalsView.h"
#include "BrowserWorkspaceView.h"
#include "ConnectorsView.h"
#include "OverviewView.h"
#include "PricingView.h"
#include "RequestsView.h"
#include "SecurityView.h"
#include "TextScale.h"
#include "UiStage.h"

namespace quorvel {
namespace {

using namespace quorvel::testing;
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

bool isInside(const Gdk::Rectangle& inner, const Gtk::Widget& outer) {
  return inner.get_x() >= 0 && inner.get_y() >= 0 && inner.get_x() + inner.get_width() <= outer.get_width() &&
         inner.get_y() + inner.get_height() <= outer.get_height();
}

/// A text that is cut, higher than its room, or sticks out of a card or pill around it. A text that keeps to
/// one line may end in an ellipsis.
bool isCut(Gtk::Widget& screen, Gtk::Label& label) {
  int needed, ignored;
  const int width = label.get_width() + label.get_margin_start() + label.get_margin_end();
  label.measure(Gtk::Orientation::VERTICAL, width, needed, ignored, ignored, ignored);
  needed -= label.get_margin_top() + label.get_margin_bottom();
  const bool isShortened = label.get_layout()->is_ellipsized() && !label.get_single_line_mode();
  if (isShortened || label.get_height() < needed)
    return true;
  for (auto* outer = label.get_parent(); outer != screen.get_parent(); outer = outer->get_parent())
    if (!isInside(boundsIn(*outer, label), *outer))
      return true;
  return false;
}

std::vector<std::string> cutTexts(Gtk::Widget& screen) {
  std::vector<std::string> result;
  for (auto* label : all<Gtk::Label>(screen))
    if (label->get_mapped() && isCut(screen, *label))
      result.push_back(label->get_text());
  return result;
}

std::vector<std::string> overlappingTexts(Gtk::Widget& screen) {
  auto labels = all<Gtk::Label>(screen);
  std::erase_if(labels, [](auto* label) { return !label->get_mapped(); });
  std::vector<std::string> result;
  for (std::size_t i = 0; i < labels.size(); ++i)
    for (std::size_t j = 0; j < i; ++j)
      if (boundsIn(screen, *labels[i]).intersects(boundsIn(screen, *labels[j])))
        result.push_back(labels[i]->get_text() + " / " + labels[j]->get_text());
  return result;
}

/// A screen, its width in points and the size of text.
class LargeTextTest : public ::testing::TestWithParam<std::tuple<Screen, int, double>> {};

TEST_P(LargeTextTest, NoTextIsCutAndNoneOverlapsAnother) {
  const auto& [screen, width, factor] = GetParam();
  const TextScale scale(factor);
  Models models;
  auto* view = screen.make(models);
  UiStage stage(*view, width);
  EXPECT_EQ(view->get_width(), width) << "the screen would stick out of its column";
  EXPECT_THAT(cutTexts(*view), IsEmpty());
  EXPECT_THAT(overlappingTexts(*view), IsEmpty());
}

using Case = std::tuple<Screen, int, double>;
std::string nameOf(const ::testing::TestParamInfo<Case>& info) {
  const auto& [screen, width, factor] = info.param;
  return screen.name + std::to_string(width) + "Points" + std::to_string(static_cast<int>(factor * 100)) +
         "Percent";
}
INSTANTIATE_TEST_SUITE_P(Screens, LargeTextTest,
                         Combine(ValuesIn(screens), Values(852, 952, 962, 1272), Values(1.0, 1.5)), nameOf);

} // namespace
} // namespace quorvel
