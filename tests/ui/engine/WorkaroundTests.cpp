#include "engine/GObjectPointer.h"
#include "support/RealInput.h"
#include "support/TemporaryFolder.h"
#include "support/TestWindow.h"

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <glib.h>
#include <gtest/gtest.h>
#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/popover.h>
#include <webkit/webkit.h>

namespace quorvel {
namespace {

// What these find at fault the engine room works around. One that fails says that the engine has been mended,
// and that the workaround can go as soon as no older engine is supported.

TEST(Workaround, TheEngineStillHasATextViewThatTabNeverLeaves) {
  const GObjectPointer<GtkWidget> view(GTK_WIDGET(g_object_ref_sink(webkit_web_view_new())));
  GtkWidget* inner = gtk_widget_get_first_child(view.get());
  ASSERT_TRUE(inner) << "see keepTabMoving()";
  EXPECT_TRUE(gtk_widget_get_focusable(inner)) << "see keepTabMoving()";
}

TEST(Workaround, OlderEnginesMoveTheFocusOutOfThePageAndGiveTheKeyBackAsWell) {
  auto* page = webkit_web_view_new();
  gtk_widget_set_focusable(gtk_widget_get_first_child(page), FALSE);
  Gtk::Button next("Next"), nextButOne("Next but one");
  Gtk::Box content;
  content.append(next);
  content.append(nextButOne);
  content.append(*Gtk::manage(Glib::wrap(page)));
  gtk_widget_set_hexpand(page, TRUE);
  tests::TestWindow window(content, 400, 300);
  webkit_web_view_load_html(WEBKIT_WEB_VIEW(page), "<title>Page</title>", nullptr);
  ASSERT_TRUE(tests::eventually([&] { return !webkit_web_view_is_loading(WEBKIT_WEB_VIEW(page)); }));
  tests::pointAt(content);
  tests::focusOn(*Glib::wrap(page));
  tests::strikeKey("Tab");
  const bool isOlder = webkit_get_minor_version() < 52;
  EXPECT_TRUE(tests::eventually([&] { return (isOlder ? nextButOne : next).has_focus(); }))
      << "see keepTabMoving()";
}

TEST(Workaround, NewerToolkitsCloseAPopupThatFindsNoRoom) {
  Gtk::Box content;
  tests::TestWindow window(content, 400, 300);
  Gtk::Popover popup;
  Gtk::Box inside;
  inside.set_size_request(10'000, 20);
  popup.set_child(inside);
  popup.set_parent(content);
  popup.popup();
  tests::drawFrame(content);
  const bool isOlder = gtk_get_minor_version() < 18;
  EXPECT_TRUE(tests::eventually([&] { return popup.get_visible() == isOlder; })) << "see fitOnScreen()";
  popup.unparent();
}

TEST(Workaround, TheEngineStillCrashesWhereItTakesAPictureForSwipesWithoutAWindow) {
  const tests::TemporaryFolder pages;
  std::string addresses[2];
  for (auto& address : addresses) {
    const auto page = pages.path / (&address == addresses ? "one.html" : "other.html");
    std::ofstream(page) << "<title>Page</title>";
    address = "file://" + page.string();
  }
  const char* command[] = {QUORVEL_WINDOWLESS_SWIPE, addresses[0].c_str(), addresses[1].c_str(), nullptr};
  int status = 0;
  ASSERT_TRUE(g_spawn_sync(nullptr, const_cast<char**>(command), nullptr, G_SPAWN_STDERR_TO_DEV_NULL, nullptr,
                           nullptr, nullptr, nullptr, &status, nullptr));
  EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGSEGV) << status << ", see allowSwipes()";
}

} // namespace
} // namespace quorvel
