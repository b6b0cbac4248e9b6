#include "console/RequestsView.h"

#include "brand/QuorvelBrand.h"
#include "brand/StatusPill.h"
#include "support/Looks.h"
#include "support/TestWindow.h"
#include "support/TextScale.h"

#include <map>

namespace quorvel {
namespace {

using namespace quorvel::tests;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

RequestItem request(double progress, RequestStatus status = RequestStatus::routed) {
  return {.id = "one",
          .title = "One",
          .agent = "Agent",
          .source = "Source",
          .status = status,
          .summary = "Summary",
          .progress = progress,
          .lastUpdated = "Now"};
}

/// The card of one request, by its title; of several with that title the uppermost.
Gtk::Widget& cardIn(Gtk::Widget& view, const std::string& title) {
  Gtk::Widget* widget = labelled(view, title);
  while (!widget->has_css_class("quorvel-card"))
    widget = widget->get_parent();
  return *widget;
}

std::vector<Gtk::Widget*> stepPills(Gtk::Widget& card) {
  std::vector<Gtk::Widget*> pills;
  for (auto* title : {"Found", "Drafted", "Review", "Done"})
    pills.push_back(labelled(card, title)->get_parent());
  return pills;
}

/// The steps that are drawn lit, by their soft grounds and the full colours of their texts. All others must
/// be drawn dark.
std::vector<std::string> litSteps(Gtk::Widget& card) {
  const std::map<std::string, std::string> tones{
      {"Found", "blue"}, {"Drafted", "green"}, {"Review", "gold"}, {"Done", "slate"}};
  std::vector<std::string> lit;
  for (auto* pill : stepPills(card)) {
    const auto title = texts(*pill).front(), &tone = tones.at(title);
    const auto look = [&](const std::string& ground, const std::string& ink) {
      return "\nground " + ground + " capsule, line white/0.115\npadded 0 8\n\"" + title + "\" 11 700 " +
             ink + "\n";
    };
    if (lookOf(*pill) == look(tone + "/0.14", tone))
      lit.push_back(title);
    else
      EXPECT_EQ(lookOf(*pill), look("raised", "white/0.55"));
  }
  return lit;
}

class RequestsTest : public ::testing::Test {
 protected:
  void show(RecordList<RequestItem> requests) {
    store_.requests = std::move(requests);
    drawFrame(view_);
  }
  std::vector<std::string> litAt(double progress, RequestStatus status = RequestStatus::routed) {
    show({request(progress, status)});
    return litSteps(cardIn(view_, "One"));
  }
  Gdk::Rectangle bounds(const Gtk::Widget& widget) { return boundsIn(view_, widget); }

  WorkspaceStore store_;
  RequestsView view_{store_};
  TestWindow window_{view_, 852};
};

TEST_F(RequestsTest, ShowsEveryRequestOfTheSampleWorkspaceInOrder) {
  EXPECT_THAT(texts(cardIn(view_, "Delayed order customer updates")),
              ElementsAre("Waiting", "Gmail", "Delayed order customer updates",
                          "Three replies are drafted after checking fulfillment notes and support history.",
                          "Order Management Agent", "4 min ago", "Found", "Drafted", "Review", "Done"));
  int above = 0;
  for (const auto& item : *store_.requests) {
    const int y = bounds(cardIn(view_, item.title)).get_y();
    EXPECT_GT(y, above) << item.title;
    above = y;
  }
}

TEST_F(RequestsTest, TheStepsLightUpAtTheirThresholdsInclusive) {
  EXPECT_THAT(litAt(0.0), IsEmpty());
  EXPECT_THAT(litAt(0.149), IsEmpty());
  EXPECT_THAT(litAt(0.15), ElementsAre("Found"));
  EXPECT_THAT(litAt(0.499), ElementsAre("Found"));
  EXPECT_THAT(litAt(0.5), ElementsAre("Found", "Drafted"));
  EXPECT_THAT(litAt(0.74), ElementsAre("Found", "Drafted"));
  EXPECT_THAT(litAt(0.75), ElementsAre("Found", "Drafted", "Review"));
  EXPECT_THAT(litAt(0.999), ElementsAre("Found", "Drafted", "Review"));
  EXPECT_THAT(litAt(1.0), ElementsAre("Found", "Drafted", "Review", "Done"));
}

TEST_F(RequestsTest, AProgressAboveOneLightsAllStepsAndANegativeOneNone) {
  EXPECT_THAT(litAt(1.7), ElementsAre("Found", "Drafted", "Review", "Done"));
  EXPECT_THAT(litAt(-0.2), IsEmpty());
}

TEST_F(RequestsTest, ACompleteRequestBelowFullProgressDoesNotLightDone) {
  EXPECT_THAT(litAt(0.9, RequestStatus::complete), ElementsAre("Found", "Drafted", "Review"));
}

TEST_F(RequestsTest, ALitStepHasItsToneAndADarkOneTheRaisedPanelWithDimmedText) {
  show({request(0.5, RequestStatus::complete)});
  const auto pills = stepPills(cardIn(view_, "One"));
  EXPECT_THAT(inkOf(*labelled(view_, "Found")), IsColor(QuorvelBrand::blue));
  EXPECT_THAT(inkOf(*labelled(view_, "Drafted")), IsColor(QuorvelBrand::green));
  EXPECT_LT(inkOf(*labelled(view_, "Review")).alpha, 1) << "dimmed";
  const auto dark = bounds(*pills[2]);
  EXPECT_THAT(window_.pixel(dark.get_x() + 30, dark.get_y() + 4), IsColor(QuorvelBrand::panelRaised));
  EXPECT_TRUE(pills[2]->has_css_class("tone-gold"));
  EXPECT_TRUE(pills[3]->has_css_class("tone-slate"));
}

TEST_F(RequestsTest, TheFourStepsShareTheRowEquallyTenPointsApart) {
  const auto pills = stepPills(cardIn(view_, "Founder weekly plan"));
  EXPECT_EQ(bounds(*pills[0]).get_x(), 18);
  EXPECT_EQ(bounds(*pills[3]).get_x() + bounds(*pills[3]).get_width(), 852 - 18);
  for (std::size_t i = 1; i < pills.size(); ++i) {
    EXPECT_NEAR(bounds(*pills[i]).get_width(), bounds(*pills[0]).get_width(), 1);
    EXPECT_EQ(bounds(*pills[i]).get_x(),
              bounds(*pills[i - 1]).get_x() + bounds(*pills[i - 1]).get_width() + 10);
  }
  EXPECT_EQ(pills[0]->get_height(), labelled(*pills[0], "Found")->get_height() + 16);
}

TEST_F(RequestsTest, TheBarShowsTheProgressInTheToneOfTheStatusAndThePillIsPlain) {
  show({request(0.34, RequestStatus::waiting)});
  auto& card = cardIn(view_, "One");
  const auto* bar = all<Gtk::ProgressBar>(card).at(0);
  EXPECT_DOUBLE_EQ(bar->get_fraction(), 0.34);
  EXPECT_TRUE(bar->has_css_class("tone-gold"));
  const auto* pill = all<StatusPill>(card).at(0);
  EXPECT_TRUE(pill->has_css_class("tone-gold"));
  EXPECT_FALSE(pill->has_css_class("pill-prominent"));
}

TEST_F(RequestsTest, AChangedRequestIsShownOnTheSameWidgets) {
  auto* before = &cardIn(view_, "Founder weekly plan");
  store_.requests.update([](auto& list) {
    list[2].progress = 1;
    list[2].status = RequestStatus::complete;
  });
  drawFrame(view_);
  auto& after = cardIn(view_, "Founder weekly plan");
  EXPECT_EQ(&after, before);
  EXPECT_THAT(litSteps(after), ElementsAre("Found", "Drafted", "Review", "Done"));
  EXPECT_EQ(texts(after).front(), "Complete");
}

TEST_F(RequestsTest, AnEmptyListShowsOnlyTheHead) {
  show({});
  EXPECT_THAT(texts(view_),
              ElementsAre("LIVE REQUESTS", "Work moving through agents", ::testing::_, "New Request"));
}

TEST_F(RequestsTest, EachPressOfNewRequestCreatesExactlyOneWithOnlyFoundLit) {
  auto& create = *buttonNamed(view_, "New Request");
  click(create);
  drawFrame(view_);
  EXPECT_EQ(store_.requests->size(), 5U);
  EXPECT_THAT(litSteps(cardIn(view_, "New workspace request")), ElementsAre("Found"));
  click(create);
  drawFrame(view_);
  EXPECT_EQ(store_.requests->size(), 6U);
  EXPECT_TRUE(create.is_sensitive());
}

TEST_F(RequestsTest, TheButtonStandsOnTheBottomEdgeOfTheHeader) {
  const auto button = bounds(*buttonNamed(view_, "New Request"));
  const auto header = bounds(*labelled(view_, "LIVE REQUESTS")->get_parent());
  EXPECT_EQ(button.get_y() + button.get_height(), header.get_y() + header.get_height());
  EXPECT_EQ(button.get_x() + button.get_width(), 852);
}

TEST_F(RequestsTest, RowsStandTwelvePointsApartAndTheListTwentyTwoBelowTheHead) {
  const auto header = bounds(*labelled(view_, "LIVE REQUESTS")->get_parent());
  const auto first = bounds(cardIn(view_, "Delayed order customer updates"));
  const auto second = bounds(cardIn(view_, "Retargeting spend review"));
  EXPECT_EQ(first.get_y(), header.get_y() + header.get_height() + 22);
  EXPECT_EQ(second.get_y(), first.get_y() + first.get_height() + 12);
  EXPECT_EQ(first.get_width(), 852);
}

TEST(Requests, TenThousandNewOnesLeaveEveryListWholeAndOnlyTheRowsNearSightBuilt) {
  WorkspaceStore store;
  auto* view = Gtk::make_managed<RequestsView>(store);
  Gtk::ScrolledWindow scroller;
  scroller.set_child(*padded(28, view));
  TestWindow window(scroller, 908, 760);
  for (int i = 0; i < 10'000; ++i)
    store.createRequest();
  drawFrame(scroller);

  EXPECT_EQ(store.requests->size(), 10'004U);
  EXPECT_EQ(store.activity->size(), 10'004U);
  EXPECT_EQ(store.approvals->size(), 3U);
  EXPECT_EQ(store.connectors->size(), 10U);
  EXPECT_EQ(store.activeRequestCount(), 10'003);
  EXPECT_LT(all<Gtk::ProgressBar>(*view).size(), 20U);
  EXPECT_EQ(all<StatusPill>(*view).size(), all<Gtk::ProgressBar>(*view).size());

  const auto scroll = scroller.get_vadjustment();
  scroll->set_value(scroll->get_upper());
  drawFrame(scroller);
  const auto last = boundsIn(scroller, cardIn(*view, "Past-due invoice summary"));
  EXPECT_EQ(last.get_y() + last.get_height(), 760 - 28);
  EXPECT_LT(all<Gtk::ProgressBar>(*view).size(), 20U);

  store.createRequest();
  drawFrame(scroller);
  EXPECT_EQ(store.requests->size(), 10'005U);
}

TEST(Requests, AnAgentKeepsToItsLineInLargeTextAndTheSummaryWraps) {
  const TextScale large(1.5);
  WorkspaceStore store;
  RequestsView view(store);
  TestWindow window(view, 852);
  for (const auto& item : *store.requests)
    EXPECT_EQ(labelled(view, item.agent)->get_layout()->get_line_count(), 1) << item.agent;
  const auto& item = store.requests->at(1);
  auto* summary = labelled(view, item.summary);
  EXPECT_GT(summary->get_layout()->get_line_count(), 1) << "more than one line";
  EXPECT_FALSE(summary->get_layout()->is_ellipsized());
}

} // namespace
} // namespace quorvel
