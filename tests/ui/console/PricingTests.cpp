#include "console/PricingView.h"

#include "brand/QuorvelBrand.h"
#include "brand/StatusPill.h"
#include "support/TestWindow.h"

namespace quorvel {
namespace {

using namespace quorvel::tests;
using ::testing::ElementsAre;

class PricingTest : public ::testing::Test {
 protected:
  Gtk::Widget& grid() { return *view_.get_first_child()->get_next_sibling(); }
  Gtk::Widget& comparison() { return *view_.get_last_child(); }
  std::vector<Gtk::Widget*> childrenOf(Gtk::Widget& parent) {
    std::vector<Gtk::Widget*> children;
    for (auto* child = parent.get_first_child(); child; child = child->get_next_sibling())
      children.push_back(child);
    return children;
  }
  std::vector<Gtk::Widget*> cards() { return childrenOf(grid()); }
  std::vector<Gtk::Button*> shownButtons() {
    auto buttons = all<Gtk::Button>(view_);
    std::erase_if(buttons, [](auto* button) { return !button->get_mapped(); });
    return buttons;
  }
  /// The text of every plan's button, in order.
  std::vector<std::string> choices() {
    std::vector<std::string> result;
    for (auto* button : shownButtons())
      result.push_back(texts(*button).front());
    return result;
  }
  std::vector<std::string> namesWithPill() {
    std::vector<std::string> result;
    for (auto* card : cards())
      if (labelled(*card, "Individual"))
        result.push_back(texts(*card).front());
    return result;
  }
  void feature(std::vector<std::size_t> indices) {
    store_.plans.update([&](auto& plans) {
      for (std::size_t i = 0; i < plans.size(); ++i)
        plans[i].isFeatured = std::ranges::find(indices, i) != indices.end();
    });
    drawFrame(view_);
  }
  int columns() {
    int x = -1, count = 0;
    for (auto* card : cards()) {
      const auto bounds = boundsIn(grid(), *card);
      if (bounds.get_x() <= x)
        break;
      x = bounds.get_x();
      ++count;
    }
    return count;
  }

  WorkspaceStore store_;
  PricingView view_{store_};
  TestWindow window_{view_, 852};
};

TEST_F(PricingTest, ShowsTheHeaderThePlansInOrderAndTheComparison) {
  EXPECT_THAT(
      texts(*view_.get_first_child()),
      ElementsAre("PLANS", "From one person to managed rollout",
                  "The desktop app mirrors the public Quorvel packaging: start small, add helpers, then "
                  "add managed setup for teams."));
  ASSERT_EQ(cards().size(), 4U);
  EXPECT_THAT(texts(*cards()[0]),
              ElementsAre("Free", "$0", "Try one personal or business task.", "20 model turns",
                          "Main agent chat", "One saved space", "Select Plan"));
  EXPECT_THAT(texts(*cards()[1]),
              ElementsAre("Starter", "Individual", "$20/mo",
                          "One always-on AI agent for planning, writing, review, and follow-up.",
                          "2,000 model turns", "Helper agent checklists", "Files, drafts, and memory",
                          "Choose Starter"));
  EXPECT_EQ(texts(*cards()[2]).front(), "Operator");
  EXPECT_EQ(texts(*cards()[3]).front(), "Managed");
  EXPECT_THAT(
      texts(comparison()),
      ElementsAre(
          "Quorvel",
          "Always-on agents, connected apps, browser context, phone/message access, and approvals.",
          "General AI chat",
          "Useful responses, but follow-up, routing, app context, and approval tracking stay manual.",
          "Developer tools",
          "Strong for software work, while Quorvel focuses on operations, customers, ads, orders, and "
          "finance."));
}

TEST_F(PricingTest, WithTheSeedPlansOnlyStarterIsFeatured) {
  EXPECT_THAT(namesWithPill(), ElementsAre("Starter"));
  EXPECT_THAT(choices(), ElementsAre("Select Plan", "Choose Starter", "Select Plan", "Select Plan"));
}

TEST_F(PricingTest, TwoFeaturedPlansShowTwoChooseStarterButtonsAndTwoPills) {
  feature({1, 2});
  EXPECT_THAT(namesWithPill(), ElementsAre("Starter", "Operator"));
  EXPECT_THAT(choices(), ElementsAre("Select Plan", "Choose Starter", "Choose Starter", "Select Plan"));
}

TEST_F(PricingTest, WhicheverPlanIsFeaturedItsButtonReadsChooseStarter) {
  feature({3});
  EXPECT_THAT(namesWithPill(), ElementsAre("Managed"));
  EXPECT_THAT(choices(), ElementsAre("Select Plan", "Select Plan", "Select Plan", "Choose Starter"));
  EXPECT_TRUE(all<StatusPill>(*cards()[3]).front()->has_css_class("tone-gold"));
}

TEST_F(PricingTest, TheFeaturedPlansButtonIsFilledAndTheOthersAreBordered) {
  const auto buttons = shownButtons();
  EXPECT_TRUE(buttons[1]->has_css_class("button-prominent"));
  for (const std::size_t i : {0U, 2U, 3U})
    EXPECT_TRUE(buttons[i]->has_css_class("button-bordered")) << i;
}

TEST_F(PricingTest, PressingAButtonDoesNothingAtAll) {
  bool isAnnounced = false;
  store_.objectWillChange().connect([&] { isAnnounced = true; });
  const auto before = texts(view_);
  const int height = view_.get_height();
  for (auto* button : shownButtons()) {
    EXPECT_TRUE(button->is_sensitive());
    click(*button);
    drawFrame(view_);
  }
  EXPECT_FALSE(isAnnounced);
  EXPECT_EQ(texts(view_), before);
  EXPECT_EQ(view_.get_height(), height);
  EXPECT_EQ(Gtk::Window::get_toplevels()->get_n_items(), 1U) << "no window opens";
}

TEST_F(PricingTest, ANarrowWindowHasOneColumnAndAWideOneShowsFourCardsSideBySide) {
  window_.resize(473);
  EXPECT_EQ(columns(), 1);
  window_.resize(474);
  EXPECT_EQ(columns(), 2);
  window_.resize(852);
  EXPECT_EQ(columns(), 3);
  window_.resize(4 * 230 + 3 * 14);
  EXPECT_EQ(columns(), 4);
  EXPECT_EQ(cards()[0]->get_width(), 230);
}

TEST_F(PricingTest, TheThreeComparisonTilesShareTheRowEquallyAndStandAtItsTop) {
  const auto tiles = childrenOf(comparison());
  ASSERT_EQ(tiles.size(), 3U);
  for (int i = 0; i < 3; ++i) {
    const auto bounds = boundsIn(comparison(), *tiles[static_cast<std::size_t>(i)]);
    EXPECT_NEAR(bounds.get_width(), (852 - 28) / 3.0, 1);
    EXPECT_NEAR(bounds.get_x(), i * (852 + 14) / 3.0, 1);
    EXPECT_EQ(bounds.get_y(), 0);
  }
}

TEST_F(PricingTest, PriceAndCheckMarksHaveThePlansTone) {
  EXPECT_THAT(inkOf(*labelled(*cards()[1], "$20/mo")), IsColor(QuorvelBrand::blue));
  const auto marks = all<Gtk::Image>(*cards()[3]);
  ASSERT_EQ(marks.size(), 3U);
  for (auto* mark : marks) {
    EXPECT_EQ(mark->get_icon_name(), "checkmark.circle.fill-symbolic");
    EXPECT_THAT(inkOf(*mark), IsColor(QuorvelBrand::gold));
  }
  EXPECT_THAT(inkOf(*labelled(*cards()[3], "Setup support")), IsColor(QuorvelBrand::ink));
}

TEST_F(PricingTest, AChangedPlanIsShownInItsCard) {
  auto* before = cards()[0];
  store_.plans.update([](auto& plans) {
    plans[0].included = {"One thing"};
    plans[0].price = "$1";
  });
  drawFrame(view_);
  EXPECT_EQ(cards()[0], before);
  EXPECT_THAT(texts(*before),
              ElementsAre("Free", "$1", "Try one personal or business task.", "One thing", "Select Plan"));
}

} // namespace
} // namespace quorvel
