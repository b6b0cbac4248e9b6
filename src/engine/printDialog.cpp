#include "engine/printDialog.h"

#include "engine/GObjectPointer.h"

#include <string_view>

namespace quorvel {
namespace {

GtkWindow* windowOf(WebKitWebView* view) {
  auto* root = gtk_widget_get_root(GTK_WIDGET(view));
  return root ? GTK_WINDOW(root) : nullptr;
}

GObjectPointer<GtkWindow> printDialogOver(GtkWindow* window) {
  constexpr std::string_view typeName = "GtkPrintUnixDialog"; // of a library that is the engine's affair
  auto* windows = gtk_window_get_toplevels();
  for (guint i = 0; i < g_list_model_get_n_items(windows); ++i) {
    GObjectPointer<GtkWindow> each(GTK_WINDOW(g_list_model_get_item(windows, i)));
    if (G_OBJECT_TYPE_NAME(each.get()) == typeName && gtk_window_get_transient_for(each.get()) == window)
      return each;
  }
  return nullptr;
}

} // namespace

void closePrintDialog(WebKitWebView* view) {
  auto* window = windowOf(view);
  if (const auto dialog = window ? printDialogOver(window) : nullptr)
    gtk_window_close(dialog.get());
}

} // namespace quorvel
