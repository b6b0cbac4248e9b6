#include "brand/StyleSheet.h"
#include "brand/heldKeys.h"
#include "startup/GraphicsEnvironment.h"
#include "startup/messageBuses.h"
#include "support/DisplayLease.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

namespace {

using quorvel::tests::TemporaryFolder;

/// Gives each test an account as if it were the first, and holds it to leaving no window behind for the next.
class FreshAccount : public testing::EmptyTestEventListener {
 public:
  FreshAccount() {
    for (const auto* folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
      g_setenv(folder, (home_.path / folder).c_str(), true);
  }

 private:
  void OnTestStart(const testing::TestInfo&) override { home_.empty(); }
  void OnTestEnd(const testing::TestInfo&) override {
    for (const auto* window : Gtk::Window::list_toplevels())
      ADD_FAILURE() << "the test left the window \"" << window->get_title() << "\" behind";
  }

  const TemporaryFolder home_;
};

} // namespace

/// Runs tests of real widgets: with folders of their own, a pinned language and the software renderer, so
/// that no user's settings and no graphics card change what they see.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (testing::GTEST_FLAG(list_tests))
    return RUN_ALL_TESTS();

  testing::UnitTest::GetInstance()->listeners().Append(new FreshAccount);
  g_setenv("LC_ALL", "C.UTF-8", true);
  g_setenv("GSK_RENDERER", "cairo", true);
  quorvel::GraphicsEnvironment("/nowhere").apply();
  g_setenv("GSETTINGS_BACKEND", "memory", true);

  quorvel::keepUsableBuses();
  const quorvel::tests::DisplayLease display;
  gtk_init();
  Gtk::Application::create();
  quorvel::installStyle();
  quorvel::letHeldKeysActOnce();
  return RUN_ALL_TESTS();
}
