// Leaves a page of a web view that has no window while swiping is on, for the test that tells whether the
// engine still crashes over that.
//
//   windowless-swipe ADDRESS OTHER-ADDRESS

#include <sys/resource.h>
#include <webkit/webkit.h>

int main(int argc, char** argv) {
  if (argc != 3) {
    g_printerr("usage: windowless-swipe ADDRESS OTHER-ADDRESS\n");
    return 2;
  }
  const rlimit noCore{0, 0};
  setrlimit(RLIMIT_CORE, &noCore);
  gtk_init();
  auto* view = WEBKIT_WEB_VIEW(g_object_ref_sink(webkit_web_view_new()));
  webkit_settings_set_enable_back_forward_navigation_gestures(webkit_web_view_get_settings(view), TRUE);
  auto* loop = g_main_loop_new(nullptr, FALSE);
  for (int page = 1; page <= 2; ++page) {
    const auto onEnd = +[](WebKitWebView*, WebKitLoadEvent event, GMainLoop* waiting) {
      if (event == WEBKIT_LOAD_FINISHED)
        g_main_loop_quit(waiting);
    };
    const auto handler = g_signal_connect(view, "load-changed", G_CALLBACK(onEnd), loop);
    webkit_web_view_load_uri(view, argv[page]);
    g_main_loop_run(loop);
    g_signal_handler_disconnect(view, handler);
  }
}
