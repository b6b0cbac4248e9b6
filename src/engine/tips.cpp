#include "engine/tips.h"

#include "engine/shortened.h"

namespace quorvel {
namespace {

/// What a tip says, which it does not tell: whatever is put into it comes to stand beside its label.
std::string textOf(GtkTooltip* tip) {
  auto* guest = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
  gtk_tooltip_set_custom(tip, guest);
  auto* label = gtk_widget_get_prev_sibling(guest);
  while (label && !GTK_IS_LABEL(label))
    label = gtk_widget_get_prev_sibling(label);
  const auto text = label ? shortened(gtk_label_get_text(GTK_LABEL(label)), whereTextGrows) : "";
  gtk_tooltip_set_custom(tip, nullptr);
  return text;
}

gboolean showTip(GtkWidget* view, int x, int y, gboolean isByKey, GtkTooltip* tip, gpointer) {
  if (!GTK_WIDGET_GET_CLASS(view)->query_tooltip(view, x, y, isByKey, tip))
    return FALSE;
  gtk_tooltip_set_text(tip, textOf(tip).c_str());
  return TRUE;
}

} // namespace

void cutTips(WebKitWebView* view) {
  g_signal_connect(view, "query-tooltip", G_CALLBACK(showTip), nullptr);
}

} // namespace quorvel
