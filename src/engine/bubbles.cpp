#include "engine/bubbles.h"

#include "engine/GObjectPointer.h"

namespace quorvel {
namespace {

constexpr glong longest = 300; // letters, which is more than a bubble shows

void cut(GtkLabel* label) {
  const char* text = gtk_label_get_text(label);
  if (g_utf8_strlen(text, -1) <= longest)
    return;
  g_autofree char* kept = g_utf8_substring(text, 0, longest);
  gtk_label_set_text(label, kept);
}

void cutIn(GtkPopover* bubble) {
  auto* content = gtk_popover_get_child(bubble);
  if (GTK_IS_LABEL(content))
    cut(GTK_LABEL(content));
}

void follow(GtkPopover* bubble) {
  cutIn(bubble);
  g_signal_connect(bubble, "notify::child", G_CALLBACK(cutIn), nullptr);
}

} // namespace

void cutBubbles(WebKitWebView* view) {
  const auto onChange = +[](GListModel* children, guint position, guint, guint added) {
    for (guint i = 0; i < added; ++i) {
      const GObjectPointer<GObject> child(G_OBJECT(g_list_model_get_item(children, position + i)));
      if (GTK_IS_POPOVER(child.get()))
        follow(GTK_POPOVER(child.get()));
    }
  };
  auto* children = gtk_widget_observe_children(GTK_WIDGET(view));
  g_signal_connect(children, "items-changed", G_CALLBACK(onChange), nullptr);
  g_object_set_data_full(G_OBJECT(view), "quorvel-bubbles", children, g_object_unref);
}

} // namespace quorvel
