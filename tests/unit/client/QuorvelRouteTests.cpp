#include "client/QuorvelRoute.h"

#include "client/ServiceOrigin.h"

#include <gmock/gmock.h>
#include <vector>

namespace quorvel {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::array everyRoute{QuorvelRoute::agent, QuorvelRoute::connectors, QuorvelRoute::browserWorkspace,
                                QuorvelRoute::voice, QuorvelRoute::pricing,    QuorvelRoute::support};

std::vector<QuorvelRoute> routesMatching(std::string_view address) {
  std::vector<QuorvelRoute> matching;
  for (auto route : everyRoute)
    if (matches(route, address))
      matching.push_back(route);
  return matching;
}

std::string onOrigin(std::string_view rest) {
  return std::string(serviceOrigin).append(rest);
}

TEST(ServiceOrigin, IsASecureOriginWithoutPortOrPath) {
  EXPECT_EQ(serviceOrigin, "https://app.quorvel.example");
  EXPECT_EQ(serviceHost, "app.quorvel.example");
}

TEST(QuorvelRoute, EachRouteHasItsFixedAddressOnTheOrigin) {
  EXPECT_EQ(url(QuorvelRoute::agent), "https://app.quorvel.example/agent.html?source=mac_app");
  EXPECT_EQ(url(QuorvelRoute::connectors),
            "https://app.quorvel.example/agent.html?source=mac_app#connectorsCenter");
  EXPECT_EQ(url(QuorvelRoute::browserWorkspace),
            "https://app.quorvel.example/agent.html?source=mac_app#browserWorkspace");
  EXPECT_EQ(url(QuorvelRoute::voice), "https://app.quorvel.example/agent.html?source=mac_app#voiceAgentCard");
  EXPECT_EQ(url(QuorvelRoute::pricing), "https://app.quorvel.example/pricing.html");
  EXPECT_EQ(url(QuorvelRoute::support), "https://app.quorvel.example/support.html");
}

TEST(QuorvelRoute, TheAddressOfEachRouteMatchesThatRouteOnly) {
  for (auto route : everyRoute)
    EXPECT_THAT(routesMatching(url(route)), ElementsAre(route)) << url(route);
}

TEST(QuorvelRoute, TheAgentPageWithABareFragmentSignMatchesNoRoute) {
  EXPECT_THAT(routesMatching(onOrigin("/agent.html#")), IsEmpty());
}

TEST(QuorvelRoute, TheAgentPageMatchesWithoutItsQuery) {
  EXPECT_THAT(routesMatching(onOrigin("/agent.html")), ElementsAre(QuorvelRoute::agent));
}

TEST(QuorvelRoute, AFragmentDoesNotMatterOutsideTheAgentPage) {
  EXPECT_THAT(routesMatching(onOrigin("/pricing.html#plans")), ElementsAre(QuorvelRoute::pricing));
  EXPECT_THAT(routesMatching(onOrigin("/support.html#contact")), ElementsAre(QuorvelRoute::support));
}

TEST(QuorvelRoute, AnyOtherPageOfTheOriginMatchesNoRoute) {
  EXPECT_THAT(routesMatching(onOrigin("/")), IsEmpty());
  EXPECT_THAT(routesMatching(onOrigin("/signin.html")), IsEmpty());
}

TEST(QuorvelRoute, MatchingIsCaseSensitive) {
  EXPECT_THAT(routesMatching(onOrigin("/Pricing.html")), IsEmpty());
  EXPECT_THAT(routesMatching(onOrigin("/agent.html#connectorscenter")), IsEmpty());
}

TEST(QuorvelRoute, TheHostIsNeverCompared) {
  EXPECT_THAT(routesMatching("https://elsewhere.example/pricing.html"), ElementsAre(QuorvelRoute::pricing));
}

TEST(QuorvelRoute, AContrivedAddressCanMatchSeveralRoutes) {
  EXPECT_THAT(routesMatching(onOrigin("/pricing.html#voiceAgentCard")),
              ElementsAre(QuorvelRoute::voice, QuorvelRoute::pricing));
}

TEST(QuorvelRouteDeathTest, AnAddressThatDoesNotParseEndsTheProgramNamingItsLine) {
  EXPECT_EXIT(
      parsedAddress("https://[", 41), ::testing::KilledBySignal(SIGABRT),
      "DesktopBrowserModel:41: Fatal error: Unexpectedly found nil while unwrapping an Optional value");
}

} // namespace
} // namespace quorvel
