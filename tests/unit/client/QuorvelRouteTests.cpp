#include "client/QuorvelRoute.h"

#include "client/ServiceOrigin.h"

#include <gmock/gmock.h>
#include <vector>

namespace quorvel {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;

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
  EXPECT_THAT(std::string(serviceOrigin), MatchesRegex("https://[a-z0-9-]+(\\.[a-z0-9-]+)+"));
  EXPECT_EQ("https://" + std::string(serviceHost), serviceOrigin);
}

TEST(QuorvelRoute, EachRouteHasItsFixedAddressOnTheOrigin) {
  EXPECT_EQ(url(QuorvelRoute::agent), onOrigin("/agent.html?source=mac_app"));
  EXPECT_EQ(url(QuorvelRoute::connectors), onOrigin("/agent.html?source=mac_app#connectorsCenter"));
  EXPECT_EQ(url(QuorvelRoute::browserWorkspace), onOrigin("/agent.html?source=mac_app#browserWorkspace"));
  EXPECT_EQ(url(QuorvelRoute::voice), onOrigin("/agent.html?source=mac_app#voiceAgentCard"));
  EXPECT_EQ(url(QuorvelRoute::pricing), onOrigin("/pricing.html"));
  EXPECT_EQ(url(QuorvelRoute::support), onOrigin("/support.html"));
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
