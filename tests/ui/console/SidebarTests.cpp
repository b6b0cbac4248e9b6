#include "SidebarView.h"

#include "QuorvelBrand.h"
#include "UiStage.h"

namespace quorvel {
namespace {

using namespace quorvel::testing;
using ::testing::ElementsAre;

class SidebarTest : public ::testing::Test {
 protected:
  Gtk::Button& row(WorkspaceSection section) { return *buttonNamed(sidebar_, std::string(title(section))); }
  /// The texts of a section's row: title, subtitle and, where there is one, its badge.
  std::vector<std::string> rowTexts(WorkspaceSection section) { return texts(row(section)); }
  std::vector<WorkspaceSection> selectedRows() {
    std::vector<WorkspaceSection> selected;
    for (const auto section : allCases<WorkspaceSection>())
      if (isAccessiblySelected(row(section)))
        selected.push_back(section);
    return selected;
  }
  void setApprovals(ApprovalState state) {
    store_.approvals.update([&](auto& list) {
      for (auto& item : list)
        item.state = state;
    });
    draw();
  }
  void draw() { drawFrame(sidebar_); }

  WorkspaceStore store_;
  SidebarView sidebar_{store_};
  UiStage stage_{sidebar_, 272, 760};
};

TEST_F(SidebarTest, ShowsTheEightSectionsInOrderWithTheThreeBadgesOfTheSampleWorkspace) {
  EXPECT_THAT(rowTexts(WorkspaceSection::overview), ElementsAre("Command Center", "Today at a glance"));
  EXPECT_THAT(rowTexts(WorkspaceSection::agents), ElementsAre("Agent Team", "Specialized helpers"));
  EXPECT_THAT(rowTexts(WorkspaceSection::requests), ElementsAre("Live Requests", "Queued work", "3"));
  EXPECT_THAT(rowTexts(WorkspaceSection::approvals), ElementsAre("Approvals", "Human gates", "2"));
  EXPECT_THAT(rowTexts(WorkspaceSection::connectors), ElementsAre("Connectors", "App access", "7"));
  EXPECT_THAT(rowTexts(WorkspaceSection::browser), ElementsAre("Browser", "Page context"));
  EXPECT_THAT(rowTexts(WorkspaceSection::security), ElementsAre("Trust", "Controls"));
  EXPECT_THAT(rowTexts(WorkspaceSection::pricing), ElementsAre("Plans", "Subscription fit"));
  int above = 0;
  for (const auto section : allCases<WorkspaceSection>()) {
    const int y = boundsIn(sidebar_, row(section)).get_y();
    EXPECT_GT(y, above) << title(section);
    above = y;
  }
}

TEST_F(SidebarTest, TheOverviewIsSelectedAtFirstAndNothingElse) {
  EXPECT_THAT(selectedRows(), ElementsAre(WorkspaceSection::overview));
}

} // namespace
} // namespace quorvel
