#include "e2e/stage/ClientTest.h"

namespace quorvel::e2e {
namespace {

struct Way {
  std::string name;
  std::string (*page)(const std::string& address);
  bool needsClick = true;
};

struct Case {
  Way way;
  std::string address;
};

void PrintTo(const Case& each, std::ostream* out) {
  *out << each.way.name << " to " << each.address;
}

std::string escaped(const std::string& text) {
  g_autofree char* result = g_uri_escape_string(text.c_str(), nullptr, false);
  return result;
}

const Way plainLink{"PlainLink", [](const std::string& address) { return linkTo(address); }};
const Way blankTarget{"BlankTarget",
                      [](const std::string& address) { return linkTo(address, "target=_blank"); }};
const Way windowOpen{"WindowOpen",
                     [](const std::string& address) { return buttonFor("window.open('" + address + "')"); }};
const Way unaskedWindowOpen{
    "UnaskedWindowOpen",
    [](const std::string& address) { return "<script>window.open('" + address + "')</script>"; }, false};
const Way scriptedNavigation{"ScriptedNavigation", [](const std::string& address) {
                               return buttonFor("location.href = '" + address + "'");
                             }};
const Way frame{"Frame", [](const std::string& address) { return "<iframe src='" + address + "'></iframe>"; },
                false};
const Way redirect{"Redirect",
                   [](const std::string& address) { return linkTo("/redirect?to=" + escaped(address)); }};
std::vector<Case> everyCase() {
  std::vector<Case> cases;
  for (const auto& way :
       {plainLink, blankTarget, windowOpen, unaskedWindowOpen, scriptedNavigation, frame, redirect})
    cases.push_back({way, "mailto:owner@shop.example"});
  for (const auto& way : {plainLink, blankTarget, windowOpen, frame, redirect})
    cases.push_back({way, "tel:+15550100"});
  return cases;
}

class SystemLinkTest : public ClientTest, public testing::WithParamInterface<Case> {};

TEST_P(SystemLinkTest, GoesToTheSystemAndLeavesThePageInPlace) {
  stage.servePage("agent.html", GetParam().way.page(GetParam().address));
  start();
  if (GetParam().way.needsClick)
    client().clickPage();
  EXPECT_TRUE(eventually([&] { return stage.handedToSystem(); }, ElementsAre(GetParam().address)));
  EXPECT_TRUE(eventually([&] { return !client().spins(); }));
  expectAddress(origin + agentPage);
  EXPECT_FALSE(client().isEnabled("Back"));
  EXPECT_EQ(client().windows().size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(Link, SystemLinkTest, testing::ValuesIn(everyCase()), [](const auto& each) {
  return each.param.way.name + (each.param.address.starts_with("tel") ? "Tel" : "Mailto");
});

class SchemeSpellingTest : public ClientTest, public testing::WithParamInterface<std::string> {};

TEST_P(SchemeSpellingTest, MakesNoDifference) {
  stage.servePage("agent.html", linkTo(GetParam()));
  start();
  client().clickPage();
  EXPECT_TRUE(eventually([&] { return stage.handedToSystem().size(); }, Eq(1u)));
  expectAddress(origin + agentPage);
}

INSTANTIATE_TEST_SUITE_P(LetterCase, SchemeSpellingTest,
                         testing::Values("MAILTO:owner@shop.example", "MailTo:owner@shop.example",
                                         "TEL:+15550100"),
                         [](const auto& address) {
                           return address.param.substr(0, address.param.find(':'));
                         });

TEST_F(ClientTest, ALinkWithoutAnyHandlerLeavesThePageInPlaceAndShowsNoDialog) {
  stage.servePage("agent.html", linkTo("mailto:owner@shop.example"));
  stage.removeHandler();
  start();
  client().clickPage();
  client().type("ctrl+r");
  waitForPage("/agent.html", 2);
  expectAddress(origin + agentPage);
  EXPECT_EQ(client().windows().size(), 1u);
}

} // namespace
} // namespace quorvel::e2e
