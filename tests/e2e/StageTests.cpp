#include "e2e/stage/ClientTest.h"

namespace quorvel::e2e {
namespace {

using StageTest = ClientTest;

TEST_F(StageTest, ADisplayStartedInThePrivateNetworkTakesThePlaceOfNoneOutside) {
  const auto output = stage.folder() / "display";
  {
    ChildProcess server({"sh", "-c", "exec Xvfb -displayfd 3 -nolisten tcp 3>&1 >/dev/null 2>&1"}, {},
                        output);
    EXPECT_TRUE(eventually([&] { return outputOf({"cat", output}); }, Not(IsEmpty())));
  }
  start();
  EXPECT_THAT(client().xWindow(), Not(IsEmpty())) << "the display outside is there as before";
}

} // namespace
} // namespace quorvel::e2e
