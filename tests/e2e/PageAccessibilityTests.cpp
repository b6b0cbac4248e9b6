#include "e2e/stage/ClientTest.h"

#include <gtk/gtk.h>

namespace quorvel::e2e {
namespace {

using PageAccessibilityTest = ClientTest;

// Before 4.14 the toolkit had no place in its own tree for that of another process.
TEST_F(PageAccessibilityTest, ThePageIsReadToItsUserWhereTheToolkitHasAPlaceForIt) {
  stage.servePage("agent.html", "<h1>Orders of today</h1>");
  start();
  const auto headings = [this] { return client().namesIn("Quorvel", ATSPI_ROLE_HEADING); };
  if (gtk_get_minor_version() >= 14)
    EXPECT_TRUE(eventually(headings, ElementsAre("Orders of today")));
  else
    EXPECT_THAT(headings(), IsEmpty());
}

TEST_F(PageAccessibilityTest, WhatIsPressedInThePageByEarIsTheUsersOwnStepInTheHistory) {
  stage.servePage("support.html",
                  "<script>let n = 0</script>"
                  "<button onclick=\"history.pushState(null, '', '/step/' + ++n)\">Next</button>");
  start();
  client().press("Support");
  waitForPage("/support.html");
  if (gtk_get_minor_version() < 14) {
    EXPECT_FALSE(client().control("Next"));
    return;
  }
  for (const char* step : {"/step/1", "/step/2"}) {
    client().press("Next");
    expectAddress(origin + step);
  }
  client().press("Back");
  expectAddress(origin + "/step/1");
}

} // namespace
} // namespace quorvel::e2e
