#include "console/BrowserWorkspaceView.h"

#include "brand/QuorvelBrand.h"
#include "brand/StatusPill.h"
#include "layout/Container.h"
#include "support/TestWindow.h"

namespace quorvel {
namespace {

using namespace quorvel::tests;
using ::testing::ElementsAre;

class BrowserWorkspaceTest : public ::testing::Test {
 protected:
  Gtk::Label& label(const char* content) { return *labelled(view_, content); }
  Gtk::Widget& mock() { return *view_.get_last_child()->get_first_child(); }
  Gtk::Widget& notes() { return *view_.get_last_child()->get_last_child(); }
  Gtk::Widget& withClass(const char* cssClass) {
    for (auto* box : all<Gtk::Box>(view_))
      if (box->has_css_class(cssClass))
        return *box;
    throw std::runtime_error(cssClass);
  }
  /// The widget that carries this class around a text.
  Gtk::Widget& around(const char* content, const char* cssClass) {
    Gtk::Widget* widget = &label(content);
    while (!widget->has_css_class(cssClass))
      widget = widget->get_parent();
    return *widget;
  }
  Color pixelAt(Gtk::Widget& widget, int x, int y) {
    const auto bounds = boundsIn(view_, widget);
    return window_.pixel(bounds.get_x() + x, bounds.get_y() + y);
  }
  Color centre(Gtk::Widget& widget) {
    return pixelAt(widget, widget.get_width() / 2, widget.get_height() / 2);
  }

  BrowserWorkspaceView view_;
  TestWindow window_{view_, 852};
};

Color over(const Color& ground, const Color& colour, double opacity) {
  const auto mix = [&](double below, double above) { return below + (above - below) * opacity; };
  return {mix(ground.red, colour.red), mix(ground.green, colour.green), mix(ground.blue, colour.blue)};
}

TEST_F(BrowserWorkspaceTest, ShowsTheSameContentWithoutAnyStore) {
  EXPECT_THAT(
      texts(view_),
      ElementsAre(
          "BROWSER WORKSPACE", "Page context beside the agent",
          "The desktop app keeps the viewed page, agent notes, screenshots, and approval state in the "
          "same workspace.",
          "mail.example.com", "Gmail", "Inbox", "1,323", "Starred", "Sent", "Drafts", "8", "Search mail",
          "Customer Desk", "Order update request", "Can you confirm when this will arrive?",
          "Storefront Orders", "New storefront sale", "Review fulfillment by Jun 9.",
          "Weekly campaign report", "Retargeting audiences", "Ready for review.", "Invoice exception",
          "Past due invoices", "Three invoices moved past due.", "Held draft",
          "Thanks for checking in. I confirmed the fulfillment note and the updated delivery window is "
          "ready below.",
          "Observed page", "Gmail customer thread",
          "Order update request is selected and source context is visible.", "Assigned helper",
          "Order Management Agent", "Draft reply is held because the action is customer-facing.", "Approval",
          "Required", "Nothing sends until the owner approves the reply batch."));
}

TEST_F(BrowserWorkspaceTest, ASideItemWithoutACountHasNoTextForIt) {
  for (const auto* title : {"Starred", "Sent"})
    EXPECT_EQ(all<Gtk::Label>(around(title, "browser-side-item")).size(), 1U) << title;
  EXPECT_THAT(texts(around("Inbox", "browser-side-item")), ElementsAre("Inbox", "1,323"));
  EXPECT_THAT(texts(around("Drafts", "browser-side-item")), ElementsAre("Drafts", "8"));
}

TEST_F(BrowserWorkspaceTest, OnlyTheInboxHasTheGreenCapsule) {
  const auto ground = over(QuorvelBrand::panel, Color::black(), 0.035);
  EXPECT_THAT(centre(around("Inbox", "browser-side-item")), IsColor(over(ground, QuorvelBrand::green, 0.12)));
  for (const auto* title : {"Starred", "Sent", "Drafts"})
    EXPECT_THAT(centre(around(title, "browser-side-item")), IsColor(ground)) << title;
}

TEST_F(BrowserWorkspaceTest, OnlyTheFirstMessageHasTheGoldGroundAndTheGoldDot) {
  const auto ground = [&](const char* sender) { return pixelAt(around(sender, "browser-message"), 11, 11); };
  const auto dot = [&](const char* sender) {
    auto& row = around(sender, "browser-message");
    return pixelAt(row, 11 + 4, row.get_height() / 2);
  };
  EXPECT_THAT(ground("Customer Desk"), IsColor(over(QuorvelBrand::panel, QuorvelBrand::gold, 0.1)));
  EXPECT_THAT(dot("Customer Desk"), IsColor(QuorvelBrand::gold));
  const auto plain = over(QuorvelBrand::panel, Color::black(), 0.025);
  for (const auto* sender : {"Storefront Orders", "Weekly campaign report", "Invoice exception"}) {
    EXPECT_THAT(ground(sender), IsColor(plain)) << sender;
    EXPECT_THAT(dot(sender), IsColor(over(plain, Color::black(), 0.16))) << sender;
  }
}

TEST_F(BrowserWorkspaceTest, TheMockIsNeverNarrowerThan520PointsNorTheNotesThan300) {
  window_.resize(600);
  EXPECT_EQ(view_.get_width(), 520 + 18 + 300);
  EXPECT_EQ(mock().get_width(), 520);
  EXPECT_EQ(notes().get_width(), 300);
}

TEST_F(BrowserWorkspaceTest, TheMockTakesTheWidthThatIsLeftOver) {
  window_.resize(952);
  EXPECT_EQ(mock().get_width(), 952 - 18 - 300);
  EXPECT_EQ(notes().get_width(), 300);
  EXPECT_EQ(boundsIn(view_, notes()).get_y(), boundsIn(view_, mock()).get_y());
}

TEST_F(BrowserWorkspaceTest, NoControlInItCanHaveTheFocus) {
  EXPECT_FALSE(view_.child_focus(Gtk::DirectionType::TAB_FORWARD));
  for (auto* widget : all<Gtk::Widget>(view_))
    EXPECT_FALSE(widget->get_focusable()) << G_OBJECT_TYPE_NAME(widget->gobj());
}

TEST_F(BrowserWorkspaceTest, ThePageHasAtLeast430PointsAndItsSidebar130WithinItsPadding) {
  auto& sidebar = withClass("browser-sidebar");
  EXPECT_EQ(sidebar.get_width(), 14 + 130 + 14);
  EXPECT_GE(sidebar.get_height(), 430);
  EXPECT_EQ(boundsIn(sidebar, label("Gmail")).get_x(), 14);
  EXPECT_EQ(boundsIn(sidebar, label("Gmail")).get_y(), 14) << "the folders are pushed to the top";
  EXPECT_EQ(around("Inbox", "browser-side-item").get_width(), 130);
}

TEST_F(BrowserWorkspaceTest, TheMockIsAsHighAsItsPageHoweverMuchRoomThereIs) {
  const int natural = heightRequest(mock(), mock().get_width()).natural;
  window_.resize(852, 1100);
  EXPECT_EQ(mock().get_height(), natural);
  const auto draft = boundsIn(mock(), withClass("browser-draft"));
  const auto lastMessage = boundsIn(mock(), around("Invoice exception", "browser-message"));
  EXPECT_EQ(draft.get_y(), lastMessage.get_y() + lastMessage.get_height() + 10 + 8 + 10)
      << "the least spacer and the gaps around it";
}

TEST_F(BrowserWorkspaceTest, TheHeldDraftStandsAtTheBottomOfThePage) {
  const auto draft = boundsIn(mock(), withClass("browser-draft"));
  EXPECT_EQ(draft.get_y() + draft.get_height(), mock().get_height() - 14);
}

TEST_F(BrowserWorkspaceTest, TheWindowButtonsAreRedYellowAndGreen) {
  const auto chrome = over(QuorvelBrand::panel, QuorvelBrand::panelRaised, 0.85);
  std::vector<Gtk::Widget*> buttons;
  for (auto* box : all<Gtk::Box>(view_))
    if (box->has_css_class("window-button"))
      buttons.push_back(box);
  ASSERT_EQ(buttons.size(), 3U);
  for (auto* button : buttons) {
    EXPECT_EQ(button->get_width(), 11);
    EXPECT_EQ(button->get_height(), 11);
  }
  EXPECT_THAT(centre(*buttons[0]), IsColor(over(chrome, {1.0, 0.231, 0.188}, 0.72)));
  EXPECT_THAT(centre(*buttons[1]), IsColor(over(chrome, {1.0, 0.8, 0.0}, 0.82)));
  EXPECT_THAT(centre(*buttons[2]), IsColor(over(chrome, {0.204, 0.780, 0.349}, 0.72)));
}

TEST_F(BrowserWorkspaceTest, TheNoteCardsHaveTheirTonesAndShareTheColumnsWidth) {
  std::vector<std::string> tones;
  for (auto* pill : all<StatusPill>(view_)) {
    for (const auto tone : allCases<AccentTone>())
      if (pill->has_css_class("tone-" + std::string(rawValue(tone))))
        tones.emplace_back(rawValue(tone));
    EXPECT_EQ(boundsIn(notes(), *pill).get_x(), 18);
  }
  EXPECT_THAT(tones, ElementsAre("blue", "green", "gold"));
  auto cards = all<Gtk::Box>(notes());
  std::erase_if(cards, [](auto* box) { return !box->has_css_class("quorvel-card"); });
  EXPECT_EQ(cards.size(), 3U);
  for (auto* card : cards)
    EXPECT_EQ(card->get_width(), 300);
}

} // namespace
} // namespace quorvel
