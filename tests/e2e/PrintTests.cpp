#include "e2e/stage/ClientTest.h"

namespace quorvel::e2e {
namespace {

/// A page that asks what to print as soon as it is clicked.
class PrintTest : public ClientTest {
 protected:
  void askWhatToPrint() {
    stage.servePage("agent.html", buttonFor("print()"));
    start();
    client().clickPage();
    EXPECT_TRUE(eventually([&] { return client().windows().size(); }, Eq(2u)));
  }
};

TEST_F(PrintTest, TheOwnersCommandsWorkWhileThePageAsksWhatToPrint) {
  askWhatToPrint();
  outputOf({"xdotool", "mousemove", "--window", client().xWindow(), "100", "533", "click", "1"});
  waitForPage("/support.html");
  EXPECT_TRUE(eventually([&] { return client().windows().size(); }, Eq(1u))) << "nobody is asked any more";
}

TEST_F(PrintTest, TheProgramEndsWhileThePageAsksWhatToPrint) {
  askWhatToPrint();
  outputOf({"xdotool", "windowfocus", "--sync", client().xWindow()});
  client().type("ctrl+q");
  EXPECT_EQ(client().process().waitForEnd(), 0) << client().said();
}

} // namespace
} // namespace quorvel::e2e
