#include "e2e/stage/Accessible.h"
#include "e2e/stage/ChildProcess.h"
#include "e2e/stage/Stage.h"
#include "support/eventually.h"

namespace quorvel::e2e {
namespace {

using testing::IsEmpty;
using tests::eventually;

class ConsoleSessionTest : public testing::Test {
 protected:
  /// Presses a button as soon as it is there.
  void press(const std::string& name) const {
    const auto isPressed = [&] {
      const auto application = Accessible::ofProcess(console.id());
      const auto button = application ? application->find(ATSPI_ROLE_PUSH_BUTTON, name) : std::nullopt;
      return button && button->activate();
    };
    EXPECT_TRUE(eventually(isPressed)) << name;
  }
  std::string said() const { return textOf(log_); }

  const Stage stage;

 private:
  const std::string log_ = stage.folder() / "tmp" / "console.log";

 protected:
  ChildProcess console{{QUORVEL_CONSOLE}, {}, log_};
};

TEST_F(ConsoleSessionTest, EverySectionIsVisitedAndTheProgramEndsWithoutAWord) {
  for (const auto* section : {"Agent Team", "Live Requests", "Approvals", "Connectors", "Browser", "Trust",
                              "Plans", "Command Center"})
    press(section);
  press("Close");
  EXPECT_EQ(console.waitForEnd(), 0);
  EXPECT_THAT(said(), IsEmpty());
}

} // namespace
} // namespace quorvel::e2e
