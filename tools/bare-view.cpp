// The yardstick of the start-up benchmark: a window with a web view on a page of the service, and nothing
// else.

#include <string>
#include <webkit/webkit.h>

int main(int argc, char** argv) {
  if (argc != 2) {
    g_printerr("usage: bare-view PATH\n");
    return 2;
  }
  g_set_prgname("bare-view");
  gtk_init();
  const auto view = webkit_web_view_new();
  webkit_web_view_load_uri(WEBKIT_WEB_VIEW(view), (std::string(QUORVEL_ORIGIN) + argv[1]).c_str());

  const auto window = gtk_window_new();
  gtk_window_set_default_size(GTK_WINDOW(window), 1180, 760);
  gtk_window_set_child(GTK_WINDOW(window), view);
  const auto loop = g_main_loop_new(nullptr, FALSE);
  g_signal_connect_swapped(window, "destroy", G_CALLBACK(g_main_loop_quit), loop);
  gtk_window_present(GTK_WINDOW(window));
  g_main_loop_run(loop);
  g_main_loop_unref(loop);
}
