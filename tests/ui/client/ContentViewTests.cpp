#include "client/ContentView.h"

#include "brand/QuorvelBrand.h"
#include "client/AddressField.h"
#include "client/DesktopClientNavRow.h"
#include "client/DesktopClientSidebar.h"
#include "client/DesktopClientToolbar.h"
#include "client/QuorvelWebView.h"
#include "client/ServiceOrigin.h"
#include "client/WarningBar.h"
#include "support/Looks.h"
#include "support/RightToLeft.h"
#include "support/TextChecks.h"
#include "support/TextScale.h"
#include "ui/client/ContentWindow.h"
#include "ui/client/ModelTest.h"

#include <fstream>
#include <unistd.h>

namespace quorvel {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Eq;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using tests::boundsIn;
using tests::buttonNamed;
using tests::IsColor;
using tests::labelled;
using tests::TestWindow;

MATCHER_P4(IsRectangle, x, y, width, height, "") {
  *result_listener << arg.get_x() << ", " << arg.get_y() << ", " << arg.get_width() << " by "
                   << arg.get_height();
  return arg.get_x() == x && arg.get_y() == y && arg.get_width() == width && arg.get_height() == height;
}

/// What this process holds in memory, in MiB.
long memory() {
  long whole = 0, resident = 0;
  std::ifstream("/proc/self/statm") >> whole >> resident;
  return resident * ::sysconf(_SC_PAGESIZE) / (1024 * 1024);
}

/// The content of the client's window at its least size, on a real model.
class ContentViewTest : public ModelTest, protected tests::ContentWindow {
 protected:
  void SetUp() override {
    show("/agent.html");
    open(*model);
  }
  void TearDown() override { close(); }

  /// Shows a page and what the model then says.
  void showPage(const std::string& path) {
    show(path);
    tests::drawFrame(*view);
  }

  template <class Widget>
  Widget& the() {
    const auto found = tests::all<Widget>(*view);
    EXPECT_EQ(found.size(), 1u);
    return *found.front();
  }
  Gtk::Button& button(const char* name) { return *buttonNamed(*view, name); }
  Gdk::Rectangle bounds(const Gtk::Widget& widget) { return boundsIn(*view, widget); }
  std::string shownAddress() {
    std::string address;
    for (const auto& part : tests::texts(the<AddressField>()))
      address += part;
    return address;
  }
  std::vector<std::string> highlighted() {
    std::vector<std::string> titles;
    for (auto* row : tests::all<DesktopClientNavRow>(*view))
      if (tests::isAccessiblySelected(*tests::all<Gtk::Button>(*row).front()))
        titles.push_back(tests::texts(*row).front());
    return titles;
  }
  /// Where on the window's surface a popup begins, and where the address ends.
  static double topOf(GtkPopover* popup) {
    double left = 0, top = 0;
    gtk_native_get_surface_transform(GTK_NATIVE(popup), &left, &top);
    return top + gdk_popup_get_position_y(GDK_POPUP(gtk_native_get_surface(GTK_NATIVE(popup))));
  }
  double addressBottom() {
    double left = 0, top = 0;
    gtk_native_get_surface_transform(GTK_NATIVE(window->gobj()), &left, &top);
    const auto address = boundsIn(*window, the<AddressField>());
    return top + address.get_y() + address.get_height();
  }
};

TEST_F(ContentViewTest, EveryTextIsThereInItsOrder) {
  EXPECT_THAT(tests::texts(*view),
              ElementsAre("Quorvel", "Desktop agent client", "+ New chat", "Live app", "Agent workspace",
                          "Chats and approvals", "Connectors", "Apps and access", "Browser workspace",
                          "Page context", "Voice agent", "Calls and scheduling", "Pricing",
                          "Plans and billing", "Support", "Help and contact", "LIVE BACKEND", "WebKit",
                          "This app is connected to " + std::string(serviceHost) +
                              ", so sign-in, sessions, billing, connectors, and the agent workspace run "
                              "through the live service.",
                          server.address(""), "/agent.html", "Open externally"));
  EXPECT_THAT(tests::cutTexts(*view), IsEmpty());
}

TEST_F(ContentViewTest, ItsLookIsTheDrawings) {
  const auto look = std::string(R"(
row 0
gradient 0.028:0.022:0.02 0.006:0.006:0.007 downwards
column 18
padded 22 20 0 20
row 12
shadow blue/0.16 0 4.2 10.08, ground control round 10.08, line white/0.16 round 10.08
column 2
"Quorvel" 16 700 white
"Desktop agent client" 11 600 secondary
spacer
padded 20 0
ground control round 10
button
padded 0 13
"+ New chat" 14 900 black
column 8
padded 20 0
"Live app" 11 900 muted
padded 12 0
ground raised round 10, line white/0.18
button
padded 12 10
row 12
*message.fill 17 600 green
column 2
"Agent workspace" 14 700 white
"Chats and approvals" 11 600 muted
spacer
padded 12 0
button
padded 12 10
row 12
*point.3.connected.trianglepath.dotted 17 600 muted
column 2
"Connectors" 14 700 secondary
"Apps and access" 11 600 muted
spacer
padded 12 0
button
padded 12 10
row 12
*safari.fill 17 600 muted
column 2
"Browser workspace" 14 700 secondary
"Page context" 11 600 muted
spacer
padded 12 0
button
padded 12 10
row 12
*phone.fill 17 600 muted
column 2
"Voice agent" 14 700 secondary
"Calls and scheduling" 11 600 muted
spacer
padded 12 0
button
padded 12 10
row 12
*creditcard.fill 17 600 muted
column 2
"Pricing" 14 700 secondary
"Plans and billing" 11 600 muted
spacer
padded 12 0
button
padded 12 10
row 12
*questionmark.circle.fill 17 600 muted
column 2
"Support" 14 700 secondary
"Help and contact" 11 600 muted
spacer
spacer
padded 0 20 18 20
ground raised round 10, line white/0.18
padded 14
column 8
row 8
"LIVE BACKEND" 11 900 green
spacer
ground green capsule, line green/0.18
padded 9 5
"WebKit" 11 700 background
"This app is connected to app.quorvel.example, so sign-in, sessions, billing, connectors, and the agent workspace run through the live service." 11 600 secondary
ground white/0.115
column 0
ground 0.02:0.018:0.018
padded 14 10
row 10
ground white/0.05 round 7, line white/0.058
button 28 high
inset 12 0
*chevron.left 16 400 white/0.5
ground white/0.05 round 7, line white/0.058
button 28 high
inset 12 0
*chevron.right 16 400 white/0.5
ground white/0.08 round 7, line white/0.115
button 28 high
inset 12 0
*arrow.clockwise 16 400 white
ground raised round 10, line white/0.115
padded 12 8
row 8
*lock.fill 13 700 green
form row 0
")") + server.address("") +
                    R"(" 11 600 secondary
"/agent.html" 11 600 secondary
ground white/0.08 round 7, line white/0.115
button 28 high
inset 12 0
row 6
*arrow.up.forward.app 16 400 white
"Open externally" 13 500 white
ground black
)";
  if (!tests::comesToLook(*view, look)) {
    EXPECT_EQ(tests::lookOf(*view), look);
  }
}

TEST_F(ContentViewTest, InLargeTextNothingIsCutAndNothingOverlaps) {
  for (const double factor : tests::textFactors) {
    SCOPED_TRACE(factor);
    close();
    const tests::TextScale large(factor);
    open(*model);
    EXPECT_THAT(tests::textFaults(*view), IsEmpty());
    EXPECT_EQ(view->get_height(), 760) << "the destinations scroll where there is no room for all of them";
    if (factor < 2) {
      EXPECT_EQ(the<DesktopClientSidebar>().get_width(), 306);
    }
    window->resize(2560, 1440);
    EXPECT_THAT(tests::textFaults(*view), IsEmpty());
    EXPECT_EQ(the<QuorvelWebView>().get_width(), 2560 - the<DesktopClientSidebar>().get_width() - 1);
  }
}

TEST_F(ContentViewTest, BeforeAnyPageReportsTheAgentAddressShowsAndNothingElseIsOn) {
  close();
  start("fresh");
  ContentView fresh(*model);
  std::string shown;
  for (auto* label : tests::all<Gtk::Label>(*tests::all<AddressField>(fresh).front()))
    shown += label->get_text();
  EXPECT_EQ(shown, url(QuorvelRoute::agent));
  EXPECT_FALSE(buttonNamed(fresh, "Back")->get_sensitive());
  EXPECT_FALSE(buttonNamed(fresh, "Forward")->get_sensitive());
  EXPECT_FALSE(tests::all<Gtk::Spinner>(fresh).front()->get_visible());
  EXPECT_FALSE(tests::all<Gtk::Spinner>(fresh).front()->get_spinning());
}

TEST_F(ContentViewTest, AtTheLeastWidthTheSidebarKeepsItsWidthAndThePageTakesTheRest) {
  EXPECT_THAT(bounds(the<DesktopClientSidebar>()), IsRectangle(0, 0, 306, 760));
  const auto toolbar = bounds(the<DesktopClientToolbar>());
  const int highest =
      std::max(bounds(the<AddressField>()).get_height(), bounds(button("Reload")).get_height());
  EXPECT_THAT(toolbar, IsRectangle(307, 0, 873, 10 + highest + 10));
  EXPECT_THAT(bounds(the<QuorvelWebView>()),
              IsRectangle(307, toolbar.get_height(), 873, 760 - toolbar.get_height()));
  EXPECT_THAT(window->pixel(306, 400), IsColor(Color{0.122, 0.123, 0.124})) << "the line on the background";
}

TEST_F(ContentViewTest, ForThoseWhoWantNoMotionNothingMovesWhileAPageLoads) {
  auto motion = Gtk::Settings::get_default()->property_gtk_enable_animations();
  motion = false;
  server.silence("/silent");
  model->load(server.address("/silent"));
  EXPECT_TRUE(tests::eventually([&] { return the<Gtk::Spinner>().get_mapped(); }));
  const auto hovered = [&](bool isHovered) {
    auto& reload = button("Reload");
    isHovered ? reload.set_state_flags(Gtk::StateFlags::PRELIGHT, false)
              : reload.unset_state_flags(Gtk::StateFlags::PRELIGHT);
    return window->picture();
  };
  const auto before = hovered(false), during = hovered(true);
  EXPECT_NE(before, during) << "only the motion is left out";
  for (int i = 0; i < 10; ++i)
    EXPECT_EQ(window->picture(), during) << "frame " << i;
  motion = true;
}

TEST_F(ContentViewTest, AWarningStandsAboveThePageAndIsNeverCut) {
  std::string sentence = "Pages are not confined";
  for (int i = 0; i < 40; ++i)
    sentence += ", and there is more";
  model->warning = sentence;
  tests::drawFrame(*view);
  const auto warning = bounds(the<WarningBar>()), page = bounds(the<QuorvelWebView>());
  const auto toolbar = bounds(the<DesktopClientToolbar>());
  EXPECT_THAT(warning, IsRectangle(307, toolbar.get_height(), 873, warning.get_height()));
  EXPECT_GT(warning.get_height(), 30);
  EXPECT_THAT(page, IsRectangle(307, warning.get_y() + warning.get_height(), 873, 760 - page.get_y()));
  EXPECT_THAT(tests::cutTexts(*view), IsEmpty());
  EXPECT_TRUE(labelled(*view, *model->warning)->get_mapped());

  model->warning = "Short";
  tests::drawFrame(*view);
  EXPECT_EQ(bounds(the<WarningBar>()).get_width(), 873);

  model->warning = "";
  tests::drawFrame(*view);
  EXPECT_FALSE(the<WarningBar>().get_mapped());
}

TEST_F(ContentViewTest, OnADesktopThatIsReadFromTheRightEverythingIsMirrored) {
  const tests::RightToLeft desktop;
  window->resize(1180, 760);
  EXPECT_EQ(bounds(the<DesktopClientSidebar>()).get_x(), 1180 - 306);
  EXPECT_EQ(bounds(the<QuorvelWebView>()).get_x(), 0);
  EXPECT_GT(bounds(button("Back")).get_x(), bounds(button("Forward")).get_x());
  const auto backwards = bounds(button("Back"));
  EXPECT_EQ(backwards.get_x() + backwards.get_width(), 873 - 14);
}

/// How far below its upper edge a symbol begins, column by column: a pixel of it is nearer to its brightest
/// one than to its ground.
std::vector<int> outline(TestWindow& window, Gtk::Widget& symbol) {
  const auto place = boundsIn(window, symbol);
  const auto picture = window.picture();
  const auto stride = static_cast<int>(picture.size()) / window.get_height();
  const auto light = [&](int x, int y) {
    return int{picture[static_cast<std::size_t>((place.get_y() + y) * stride + (place.get_x() + x) * 4)]};
  };
  int darkest = 255, brightest = 0;
  for (int i = 0; i < place.get_width() * place.get_height(); ++i) {
    const int pixel = light(i % place.get_width(), i / place.get_width());
    darkest = std::min(darkest, pixel);
    brightest = std::max(brightest, pixel);
  }
  std::vector<int> tops;
  for (int x = 0; x < place.get_width(); ++x) {
    int y = 0;
    while (y < place.get_height() && 2 * light(x, y) < darkest + brightest)
      ++y;
    tops.push_back(y);
  }
  return tops;
}

TEST_F(ContentViewTest, TheArrowsOfBackAndForwardPointWhereTheyLead) {
  const auto outlineOf = [&](const char* name) {
    return outline(*window, *tests::all<Gtk::Image>(button(name)).front());
  };
  const std::vector leftToRight{outlineOf("Back"), outlineOf("Forward")};
  const tests::RightToLeft desktop;
  tests::drawFrame(*view);
  const std::vector rightToLeft{outlineOf("Back"), outlineOf("Forward")};
  for (std::size_t arrow = 0; arrow < 2; ++arrow) {
    const auto &before = leftToRight[arrow], &after = rightToLeft[arrow];
    int unlikeItsMirrorImage = 0;
    for (std::size_t i = 0, j = before.size() - 1; i < before.size(); ++i, --j) {
      EXPECT_NEAR(after[j], before[i], 1) << "column " << i;
      unlikeItsMirrorImage += std::abs(before[i] - before[j]);
    }
    EXPECT_GT(unlikeItsMirrorImage, 10);
  }
}

TEST_F(ContentViewTest, NothingFitsIntoLessThanTheLeastSize) {
  ContentView another(*model);
  int minimum = 0, ignored = 0;
  another.measure(Gtk::Orientation::HORIZONTAL, -1, minimum, ignored, ignored, ignored);
  EXPECT_EQ(minimum, 1180);
  another.measure(Gtk::Orientation::VERTICAL, -1, minimum, ignored, ignored, ignored);
  EXPECT_EQ(minimum, 760);
}

TEST_F(ContentViewTest, AWiderWindowGivesThePageTheWholeGain) {
  window->resize(1500, 900);
  EXPECT_THAT(bounds(the<DesktopClientSidebar>()), IsRectangle(0, 0, 306, 900));
  EXPECT_EQ(bounds(the<QuorvelWebView>()).get_width(), 1193);
}

TEST_F(ContentViewTest, TheSidebarsPartsStandWhereTheyBelong) {
  EXPECT_THAT(bounds(button("+ New chat")),
              IsRectangle(20, 82, 266, bounds(button("+ New chat")).get_height()));
  const auto rows = tests::all<DesktopClientNavRow>(*view);
  ASSERT_EQ(rows.size(), 6u);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const auto row = bounds(*tests::all<Gtk::Button>(*rows[i]).front());
    EXPECT_EQ(row.get_x(), 12);
    EXPECT_EQ(row.get_width(), 282);
    if (i > 0) {
      EXPECT_EQ(row.get_y(), bounds(*rows[i - 1]).get_y() + bounds(*rows[i - 1]).get_height() + 8);
    }
  }
  auto* card = labelled(*view, "LIVE BACKEND")->get_parent()->get_parent()->get_parent();
  const auto cardBounds = bounds(*card);
  EXPECT_EQ(cardBounds.get_x(), 20);
  EXPECT_EQ(cardBounds.get_width(), 266);
  EXPECT_EQ(cardBounds.get_y() + cardBounds.get_height(), 760 - 18);
}

TEST_F(ContentViewTest, TheSidebarFadesFromItsTopColourToItsBottomOne) {
  EXPECT_THAT(window->pixel(2, 0), IsColor(Color{0.028, 0.022, 0.02}));
  EXPECT_THAT(window->pixel(2, 759), IsColor(Color{0.006, 0.006, 0.007}));
}

TEST_F(ContentViewTest, OnThePricingPageOnlyPricingIsHighlighted) {
  EXPECT_THAT(highlighted(), ElementsAre("Agent workspace"));
  showPage("/pricing.html");
  EXPECT_THAT(highlighted(), ElementsAre("Pricing"));
}

TEST_F(ContentViewTest, OnAnotherSiteNoRowIsHighlightedAndTheFieldShowsItsAddress) {
  server.page("/elsewhere", "<title>Elsewhere</title>");
  showPage("/elsewhere");
  EXPECT_THAT(highlighted(), IsEmpty());
  EXPECT_EQ(shownAddress(), server.address("/elsewhere"));
}

TEST_F(ContentViewTest, TheHighlightedRowIsRaisedAndOutlinedAndTheOthersHaveNoBox) {
  auto* selected = buttonNamed(*view, "Agent workspace");
  const auto place = bounds(*selected);
  const int middle = place.get_y() + place.get_height() / 2;
  EXPECT_THAT(window->pixel(place.get_x() + 6, middle), IsColor(QuorvelBrand::panelRaised));
  EXPECT_THAT(tests::inkOf(*labelled(*view, "Agent workspace")), IsColor(QuorvelBrand::ink));
  EXPECT_THAT(tests::inkOf(*tests::all<Gtk::Image>(*selected).front()), IsColor(QuorvelBrand::green));
  EXPECT_THAT(tests::inkOf(*labelled(*view, "Chats and approvals")), IsColor(QuorvelBrand::muted));

  auto* other = buttonNamed(*view, "Connectors");
  const auto otherPlace = bounds(*other);
  EXPECT_EQ(window->pixel(otherPlace.get_x() + 6, otherPlace.get_y() + 10),
            window->pixel(otherPlace.get_x() - 6, otherPlace.get_y() + 10));
  EXPECT_THAT(tests::inkOf(*labelled(*view, "Connectors")), IsColor(QuorvelBrand::secondaryInk));
  EXPECT_THAT(tests::inkOf(*tests::all<Gtk::Image>(*other).front()), IsColor(QuorvelBrand::muted));
}

TEST_F(ContentViewTest, EachRowAsksForItsDestination) {
  const std::pair<const char*, QuorvelRoute> destinations[] = {
      {"Agent workspace", QuorvelRoute::agent},
      {"Connectors", QuorvelRoute::connectors},
      {"Browser workspace", QuorvelRoute::browserWorkspace},
      {"Voice agent", QuorvelRoute::voice},
      {"Pricing", QuorvelRoute::pricing},
      {"Support", QuorvelRoute::support},
      {"+ New chat", QuorvelRoute::agent}};
  for (const auto& [title, route] : destinations) {
    tests::click(button(title));
    EXPECT_EQ(*model->currentURLString, url(route)) << title;
  }
}

TEST_F(ContentViewTest, ASpinnerFloatsAtTheTopCentreOfThePageWhileItLoadsAndOnlyThen) {
  auto& spinner = the<Gtk::Spinner>();
  EXPECT_FALSE(spinner.get_mapped());

  server.silence("/silent.html");
  model->load(server.address("/silent.html"));
  ASSERT_TRUE(tests::eventually([&] { return spinner.get_mapped() && spinner.get_width() > 0; }));
  EXPECT_TRUE(spinner.get_spinning());
  const auto page = bounds(the<QuorvelWebView>());
  const auto place = bounds(spinner);
  EXPECT_EQ(place.get_y(), page.get_y() + 10);
  EXPECT_NEAR(place.get_x() + place.get_width() / 2.0, page.get_x() + page.get_width() / 2.0, 1);

  timer.letOff();
  EXPECT_TRUE(tests::eventually([&] { return !spinner.get_mapped(); }));
  EXPECT_FALSE(spinner.get_spinning());
}

TEST_F(ContentViewTest, AVeryLongAddressIsShortenedAndTheWindowDoesNotGrow) {
  const auto path = "/agent.html?" + std::string(400, 'x') + "end";
  showPage(path);
  EXPECT_EQ(shownAddress(), server.address(path));
  EXPECT_TRUE(labelled(*view, path)->get_layout()->is_ellipsized());
  EXPECT_EQ(bounds(the<DesktopClientToolbar>()).get_width(), 873);
}

TEST_F(ContentViewTest, WhatAPagePutsIntoItsAddressMisleadsNobody) {
  runScript("history.pushState(null, '', '/agent.html#\\u202eelpmaxe.\\u0430pp')");
  waitForAddress("/agent.html#%E2%80%AEelpmaxe.%D0%B0pp");
  tests::drawFrame(*view);
  EXPECT_EQ(shownAddress(), server.address("/agent.html#%E2%80%AEelpmaxe.%D0%B0pp"));

  const auto misleading = "http://app.quorvel.example@" + server.address("/pricing.html").substr(7);
  model->load(misleading);
  EXPECT_EQ(*model->currentURLString, misleading) << "what is published is exact";
  ASSERT_TRUE(tests::eventually([&] { return shownAddress() == server.address("/pricing.html"); }))
      << shownAddress();
}

TEST_F(ContentViewTest, UntilAWindowThatAPageAsksForIsThereTheFieldAndItsDialogsTellOfThatPage) {
  server.silence("/silent.html");
  runScript("setTimeout(() => { open('/silent.html?1'); setTimeout(() => { open('/silent.html?2');"
            "setTimeout(() => alert('Sign in'), 50) }, 50) }); 0");
  std::vector<std::string> shown;
  ASSERT_TRUE(tests::eventually([&] {
    shown.push_back(shownAddress());
    return *model->currentURLString == server.address("/silent.html?2") && model->dialog->has_value();
  }));
  tests::drawFrame(*view);
  shown.push_back(shownAddress());
  EXPECT_THAT(shown, Each(server.address("/agent.html")));

  model->load(server.address("/pricing.html"));
  tests::drawFrame(*view);
  EXPECT_EQ(shownAddress(), server.address("/pricing.html")) << "what the owner asks for is told at once";
}

TEST_F(ContentViewTest, AWindowThatAPageAsksForIsToldOfAsSoonAsItIsThere) {
  const auto page = server.address("/pricing.html");
  const std::string nowhere = "http://127.0.0.1:65535/"; // the system gives this port to nobody
  for (const auto& address : {page, nowhere}) {
    runScript("setTimeout(() => open('" + address + "')); 0");
    EXPECT_TRUE(tests::eventually([&] { return shownAddress(); }, Eq(address)));
    waitForRest();
  }
}

TEST_F(ContentViewTest, AnAddressOfAMegabyteIsCutBeforeItIsLaidOut) {
  runScript("history.pushState(null, '', '/agent.html#' + 'x'.repeat(1000000))");
  ASSERT_TRUE(tests::eventually([&] { return model->currentURLString->size() > 1'000'000; }));
  tests::drawFrame(*view);
  EXPECT_LT(shownAddress().size(), 5'000u);
  EXPECT_EQ(bounds(the<DesktopClientToolbar>()).get_width(), 873);
}

TEST_F(ContentViewTest, AMegabyteInABubbleBesideAFieldIsCutBeforeItIsLaidOut) {
  runScript("const field = document.createElement('input'); document.body.append(field);"
            "field.setCustomValidity('ä'.repeat(1e6)); field.reportValidity(); 0");
  ASSERT_TRUE(tests::eventually([&] { return openPopup() != nullptr; }));
  EXPECT_EQ(Glib::ustring(gtk_label_get_text(GTK_LABEL(gtk_popover_get_child(openPopup())))),
            Glib::ustring(500, gunichar{0xe4}) + "…");
}

TEST_F(ContentViewTest, NoBubbleOfAPageLiesOverTheAddressField) {
  runScript("document.body.innerHTML = '<input id=field style=\"position: fixed\">';"
            "field.setCustomValidity('https://elsewhere.example'); 0");
  for (const std::string top : {"-300", "-100", "0", "40"}) {
    runScript("field.blur(); 0");
    ASSERT_TRUE(tests::eventually([&] { return openPopup() == nullptr; }));
    runScript("field.style.top = '" + top + "px'; field.reportValidity(); 0");
    ASSERT_TRUE(tests::eventually([&] { return openPopup() != nullptr; })) << top;
    EXPECT_GE(topOf(openPopup()), addressBottom()) << top;
  }
}

TEST_F(ContentViewTest, BackAndForwardAreEnabledAsTheHistoryAllowsAndTheRestAlways) {
  EXPECT_FALSE(button("Back").get_sensitive());
  EXPECT_FALSE(button("Forward").get_sensitive());
  EXPECT_TRUE(button("Reload").get_sensitive());
  EXPECT_TRUE(button("Open externally").get_sensitive());

  showPage("/agent.html#connectorsCenter");
  EXPECT_TRUE(button("Back").get_sensitive());
  EXPECT_FALSE(button("Forward").get_sensitive());

  tests::click(button("Back"));
  ASSERT_TRUE(tests::eventually([&] { return button("Forward").get_sensitive(); }));
  EXPECT_FALSE(button("Back").get_sensitive());

  tests::click(button("Forward"));
  EXPECT_TRUE(tests::eventually([&] { return button("Back").get_sensitive(); }));
}

TEST_F(ContentViewTest, AButtonThatIsDisabledUnderTheFocusHandsItToTheOneBeside) {
  showPage("/agent.html#connectorsCenter");
  button("Back").grab_focus();
  ASSERT_TRUE(button("Back").has_focus());
  tests::click(button("Back"));
  ASSERT_TRUE(tests::eventually([&] { return !button("Back").get_sensitive(); }));
  EXPECT_TRUE(button("Reload").has_focus());
}

TEST_F(ContentViewTest, ReloadAndOpenExternallyDoTheirWork) {
  tests::click(button("Reload"));
  EXPECT_TRUE(tests::eventually([&] { return server.count("/agent.html") == 2; }));
  waitForRest();
  tests::click(button("Open externally"));
  EXPECT_THAT(opened, ElementsAre(server.address("/agent.html")));
}

TEST_F(ContentViewTest, ButtonsAndRowsHaveTheirNamesAndTooltips) {
  for (const char* name : {"Back", "Forward", "Reload"}) {
    EXPECT_EQ(button(name).get_tooltip_text(), name);
    EXPECT_TRUE(tests::hasAccessibleName(button(name), name));
  }
  EXPECT_EQ(button("Open externally").get_tooltip_text(), "Open current page in browser");
  EXPECT_TRUE(tests::hasAccessibleName(button("Open externally"), "Open externally"));
  EXPECT_TRUE(tests::hasAccessibleName(button("Pricing"), "Pricing"));
  EXPECT_TRUE(tests::hasAccessibleDescription(button("Pricing"), "Plans and billing"));
}

TEST_F(ContentViewTest, TheToolbarHasItsColourAndALineBelow) {
  const int height = bounds(the<DesktopClientToolbar>()).get_height();
  EXPECT_THAT(window->pixel(312, 4), IsColor(Color{0.02, 0.018, 0.018}));
  EXPECT_THAT(window->pixel(312, height - 1), IsColor(Color{0.133, 0.131, 0.131}));
  EXPECT_EQ(bounds(button("Back")).get_x(), 307 + 14);
  EXPECT_EQ(bounds(button("Forward")).get_x(),
            bounds(button("Back")).get_x() + bounds(button("Back")).get_width() + 10);
  EXPECT_EQ(bounds(button("Open externally")).get_x() + bounds(button("Open externally")).get_width(),
            1180 - 14);
}

TEST_F(ContentViewTest, ResizingNeverReloads) {
  window->resize(1400, 860);
  window->resize(1180, 760);
  settle();
  EXPECT_EQ(server.count("/agent.html"), 1);
}

TEST_F(ContentViewTest, AChangeOfTitleOrLoadingNeitherReloadsNorReplacesThePage) {
  auto* shown = the<QuorvelWebView>().get_first_child();
  ASSERT_EQ(shown->gobj(), GTK_WIDGET(webView()));
  auto* settings = webkit_web_view_get_settings(webView());
  int settingsChanged = 0;
  g_signal_connect_swapped(settings, "notify", G_CALLBACK(+[](int* count) { ++*count; }), &settingsChanged);
  runScript("document.title = 'Another'");
  ASSERT_TRUE(tests::eventually([&] { return *model->title == "Another"; }));
  for (const bool isLoading : {true, false}) {
    model->isLoading = isLoading;
    tests::drawFrame(*view);
    EXPECT_EQ(the<Gtk::Spinner>().get_visible(), isLoading);
  }
  g_signal_handlers_disconnect_by_data(settings, &settingsChanged);
  EXPECT_EQ(settingsChanged, 0);
  EXPECT_EQ(webkit_web_view_get_settings(webView()), settings);
  EXPECT_EQ(the<QuorvelWebView>().get_first_child(), shown);
  EXPECT_EQ(server.count("/agent.html"), 1);
}

TEST_F(ContentViewTest, MakingAndDroppingTheWindowNeverTouchesThePage) {
  runScript("document.title = 'kept'");
  ASSERT_TRUE(tests::eventually([&] { return *model->title == "kept"; }));
  close();
  EXPECT_EQ(gtk_widget_get_parent(GTK_WIDGET(webView())), nullptr);
  open(*model);
  settle();
  EXPECT_EQ(*model->title, "kept");
  EXPECT_EQ(server.requests().size(), 1u);
}

TEST_F(ContentViewTest, AnotherPageCanLoadWhileThePageHasNoWindow) {
  close();
  show("/pricing.html");
  open(*model);
  EXPECT_THAT(highlighted(), ElementsAre("Pricing"));
}

TEST_F(ContentViewTest, WhereNobodySwipesNoPictureIsKeptOfThePagesThatAreLeft) {
  runScript("history.pushState(null, '', '?first')");
  waitForAddress("/agent.html?first");
  const auto before = memory();
  runScript("for (let i = 0; i < 60; ++i) history.pushState(null, '', '?' + i)");
  waitForAddress("/agent.html?59");
  EXPECT_LT(memory() - before, 30) << "MiB; sixty pictures take 150";
}

TEST_F(ContentViewTest, ThePageIsMovedToItsNewestHost) {
  QuorvelWebView newest(*model);
  EXPECT_EQ(newest.get_first_child()->gobj(), GTK_WIDGET(webView()));
  EXPECT_EQ(the<QuorvelWebView>().get_first_child(), nullptr);
}

TEST_F(ContentViewTest, TheTabKeyGoesFromTheSidebarOverTheToolbarIntoThePageAndOutAgain) {
  const auto focused = [&]() -> Gtk::Widget* { return window->get_focus(); };
  button("Support").grab_focus();
  EXPECT_TRUE(window->child_focus(Gtk::DirectionType::TAB_FORWARD));
  EXPECT_EQ(focused(), &button("Reload")) << "what is disabled is passed over";
  EXPECT_TRUE(window->child_focus(Gtk::DirectionType::TAB_FORWARD));
  EXPECT_EQ(focused(), &button("Open externally"));
  EXPECT_TRUE(window->child_focus(Gtk::DirectionType::TAB_FORWARD));
  EXPECT_EQ(focused()->gobj(), GTK_WIDGET(webView()));
  EXPECT_FALSE(gtk_widget_child_focus(GTK_WIDGET(webView()), GTK_DIR_TAB_FORWARD))
      << "no part of the view is a stop of its own";
}

} // namespace
} // namespace quorvel
