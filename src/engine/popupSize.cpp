#include "engine/popupSize.h"

#include "engine/popupList.h"

#include <algorithm>

namespace quorvel {
namespace {

/// How wide a list may be: with what the toolkit draws around it as wide as the page, and on the screen.
int widestIn(GtkWidget* view) {
  constexpr int frame = 24;
  const int page = gtk_widget_get_width(view) - frame;
  auto* surface = gtk_native_get_surface(gtk_widget_get_native(view));
  auto* monitor = gdk_display_get_monitor_at_surface(gtk_widget_get_display(view), surface);
  if (!monitor)
    return page;
  GdkRectangle screen;
  gdk_monitor_get_geometry(monitor, &screen);
  return std::min(page, screen.width * 7 / 8);
}

void fit(const PopupList& list, int widest) {
  auto* column = gtk_tree_view_get_column(list.rows, 0);
  gtk_tree_view_column_set_max_width(column, widest);
  int width = 0;
  gtk_widget_measure(GTK_WIDGET(list.rows), GTK_ORIENTATION_HORIZONTAL, -1, nullptr, &width, nullptr,
                     nullptr);
  if (width < widest)
    return;
  gtk_tree_view_column_set_min_width(column, widest); // texts that end in dots ask for next to nothing
  g_object_set(list.cell, "ellipsize", PANGO_ELLIPSIZE_END, nullptr);
}

/// The engine asks for as much as the field has, which may be wider than what is seen of the page.
void narrow(GtkPopover* popup, const PopupList& list, int widest) {
  if (gtk_scrolled_window_get_min_content_width(list.area) <= widest)
    return;
  gtk_scrolled_window_set_min_content_width(list.area, widest);
  gtk_widget_set_size_request(GTK_WIDGET(popup), widest, -1);
}

} // namespace

void fitOnScreen(GtkPopover* popup) {
  const PopupList list(popup);
  if (!list.rows)
    return;
  const int widest = widestIn(gtk_widget_get_parent(GTK_WIDGET(popup)));
  fit(list, widest);
  narrow(popup, list, widest);
}

} // namespace quorvel
