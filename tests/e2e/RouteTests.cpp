#include "e2e/stage/ClientTest.h"

namespace quorvel::e2e {
namespace {

struct Row {
  std::string title;
  std::string target;   ///< path and query
  std::string fragment; ///< with its "#"
};

void PrintTo(const Row& row, std::ostream* out) {
  *out << row.title;
}

const Row agent{"Agent workspace", agentPage, ""};
const Row connectors{"Connectors", agentPage, "#connectorsCenter"};
const Row browserWorkspace{"Browser workspace", agentPage, "#browserWorkspace"};
const Row voice{"Voice agent", agentPage, "#voiceAgentCard"};
const Row pricing{"Pricing", "/pricing.html", ""};
const Row support{"Support", "/support.html", ""};

class RowTest : public ClientTest, public testing::WithParamInterface<Row> {};

TEST_P(RowTest, OpensItsExactAddressAndIsHighlightedAlone) {
  start();
  client().press("Support");
  waitForPage("/support.html");
  const auto before = stage.requests().count(GetParam().target);

  client().press(GetParam().title);
  EXPECT_TRUE(eventually([&] { return stage.requests().count(GetParam().target); }, Gt(before)));
  expectAddress(origin + GetParam().target + GetParam().fragment);
  expectHighlighted({GetParam().title});
}

INSTANTIATE_TEST_SUITE_P(EachRow, RowTest,
                         testing::Values(agent, connectors, browserWorkspace, voice, pricing, support),
                         [](const auto& row) {
                           std::string name = row.param.title;
                           std::erase(name, ' ');
                           return name;
                         });

class RouteTest : public ClientTest {
 protected:
  void followLink(const std::string& address) {
    stage.servePage("agent.html", linkTo(address));
    start();
    client().clickPage();
  }
};

TEST_F(RouteTest, AnotherPageOfTheServiceHighlightsNoRow) {
  stage.servePage("index.html", "The root");
  followLink("/");
  expectAddress(origin + "/");
  expectHighlighted({});
}

TEST_F(RouteTest, AForeignSiteOpensInsideAndHighlightsNoRow) {
  stage.servePage("news.html", "News");
  followLink("https://www.neighbour.example/news.html");
  expectAddress("https://www.neighbour.example/news.html");
  expectHighlighted({});
  EXPECT_THAT(stage.handedToSystem(), IsEmpty());
}

TEST_F(RouteTest, ABareHashOnTheAgentPageHighlightsNoRow) {
  followLink("#");
  expectAddress(origin + agentPage + "#");
  expectHighlighted({});
}

TEST_F(RouteTest, AnyFragmentOfThePricingPageHighlightsPricing) {
  followLink("/pricing.html#starter");
  expectAddress(origin + "/pricing.html#starter");
  expectHighlighted({"Pricing"});
}

TEST_F(RouteTest, AVeryLongAddressLeavesTheWindowAsWideAsItWas) {
  const std::string longPath = "/pricing.html?" + std::string(3000, 'x');
  followLink(longPath);
  expectAddress(origin + longPath);
  const auto size = client().size();
  EXPECT_LE(size.width, 1180 + Client::border) << "the address is shortened, not the window widened";
}

} // namespace
} // namespace quorvel::e2e
