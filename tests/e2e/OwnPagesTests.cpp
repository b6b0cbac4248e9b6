#include "e2e/stage/ClientTest.h"

#include <iterator>
#include <regex>

namespace quorvel::e2e {
namespace {

class OwnPagesTest : public ClientTest {
 protected:
  /// How often Tab is pressed before the first field of a page has the focus.
  static long linksBeforeTheForm(const std::string& page) {
    const auto html = textOf(std::string(QUORVEL_OWN_PAGES) + "/" + page);
    const std::regex link("<a ");
    const auto start = html.cbegin();
    const auto form = start + static_cast<long>(html.find("<form"));
    return std::distance(std::sregex_iterator(start, form, link), {});
  }
};

TEST_F(OwnPagesTest, SigningInOnTheServicesOwnPageIsRemembered) {
  stage.serveOwnPages();
  stage.servePage("agent.html", linkTo("/sign-in.html"));
  start();
  client().clickPage();
  EXPECT_TRUE(eventually([&] { return stage.requests().count("/style.css"); }, Eq(1)));
  EXPECT_TRUE(eventually([&] { return !client().spins(); }));

  for (auto tabs = linksBeforeTheForm("sign-in.html") + 1; tabs > 0; --tabs)
    client().type("Tab");
  client().write("owner@shop.example");
  client().type("Tab");
  client().write("secret");
  client().type("Return");
  waitForPage("/agent.html", 2);
  EXPECT_THAT(stage.requests().requests().back().cookie, HasSubstr("quorvel_session="));
}

} // namespace
} // namespace quorvel::e2e
