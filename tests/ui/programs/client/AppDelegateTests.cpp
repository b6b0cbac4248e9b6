#include "programs/client/AppDelegate.h"

#include <gmock/gmock.h>
#include <gtkmm.h>

namespace quorvel {
namespace {

TEST(AppDelegateDeathTest, WithoutAnApplicationTheProgramEndsSayingWhatIsMissing) {
  ASSERT_FALSE(Gio::Application::get_default());
  EXPECT_EXIT(AppDelegate().applicationDidFinishLaunching(), ::testing::KilledBySignal(SIGABRT),
              "Fatal error: Unexpectedly found nil while implicitly unwrapping an Optional value");
}

} // namespace
} // namespace quorvel
