// What choosing a row of the client costs until its request leaves, in turns with `load_uri()` of a bare
// view: of the client's view by itself, and of the whole client, which draws what has been chosen before it
// answers the engine's question.
//
//   row-request LOG
//
// LOG is the stand-in service's log of requests.

#include "percentile.h"

#include "brand/StyleSheet.h"
#include "client/ContentView.h"
#include "client/DesktopBrowserModel.h"
#include "startup/startToolkit.h"

#include <cstdio>
#include <fstream>
#include <functional>
#include <gtkmm.h>
#include <string>
#include <utility>
#include <vector>
#include <webkit/webkit.h>

namespace {

using namespace quorvel;

constexpr int rounds = 200;
constexpr gint64 rest = 50'000; // µs, for what a page does when it has been loaded

/// The service writes when each request came, by the clock that all processes share.
class Log {
 public:
  explicit Log(const char* path) : lines_(path) {}

  void skip() {
    while (next())
      ;
  }
  /// The moment of the next request, in µs; none while there is none.
  gint64 next() {
    for (char letter; lines_.get(letter); line_ += letter)
      if (letter == '\n')
        return std::stoll(std::exchange(line_, ""));
    lines_.clear(); // there may be more later
    return 0;
  }

 private:
  std::ifstream lines_;
  std::string line_; // as far as it has been written
};

/// Without a rest: nothing wakes the main loop when the service has written something.
void runUntil(const std::function<bool()>& isDone) {
  while (!isDone())
    Glib::MainContext::get_default()->iteration(false);
}

void settle(WebKitWebView* view) {
  runUntil([view] { return !webkit_web_view_is_loading(view); });
  runUntil([end = g_get_monotonic_time() + rest] { return g_get_monotonic_time() > end; });
}

/// In milliseconds.
double measure(Log& log, WebKitWebView* view, const std::function<void()>& load) {
  log.skip();
  const auto begin = g_get_monotonic_time();
  load();
  gint64 request = 0;
  runUntil([&] { return (request = log.next()) != 0; });
  settle(view);
  return static_cast<double>(request - begin) / 1000;
}

void compare(Log& log, const char* subject, bool isWhole) {
  DesktopBrowserModel browser;
  Gtk::Window window;
  window.set_child(isWhole ? *Gtk::make_managed<ContentView>(browser) : browser.webView().widget());
  window.present();
  auto* view = WEBKIT_WEB_VIEW(browser.webView().widget().gobj());
  auto* bare = WEBKIT_WEB_VIEW(webkit_web_view_new());
  Gtk::Window bareWindow;
  gtk_window_set_child(bareWindow.gobj(), GTK_WIDGET(bare));
  bareWindow.present();
  settle(view);

  std::vector<double> ofRow, ofEngine;
  for (int i = 0; i <= rounds; ++i) {
    const auto route = i % 2 ? QuorvelRoute::agent : QuorvelRoute::pricing;
    const double row = measure(log, view, [&] { browser.load(route); });
    const double engine = measure(log, bare, [&] { webkit_web_view_load_uri(bare, url(route).c_str()); });
    if (i == 0)
      continue; // the bare view's process was started
    ofRow.push_back(row);
    ofEngine.push_back(engine);
  }
  const double row = percentile(ofRow, 0.5), engine = percentile(ofEngine, 0.5);
  std::printf("%s %.2f ms, a bare view %.2f ms: %.2f (medians of %d in turns)\n", subject, row, engine,
              row / engine, rounds);
}

} // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: row-request LOG\n", stderr);
    return 2;
  }
  if (!startToolkit({"com.quorvel.Desktop", "Quorvel", "row-request", ""}))
    return 1;
  const auto application = Gtk::Application::create("", Gio::Application::Flags::NON_UNIQUE);
  installStyle();
  setvbuf(stdout, nullptr, _IOLBF, 0);
  Log log(argv[1]);
  compare(log, "the client's view", false);
  compare(log, "the whole client", true);
}
