#include "engine/popupList.h"

namespace quorvel {

PopupList::PopupList(GtkPopover* popup) {
  auto* content = gtk_popover_get_child(popup);
  auto* list =
      GTK_IS_SCROLLED_WINDOW(content) ? gtk_scrolled_window_get_child(GTK_SCROLLED_WINDOW(content)) : nullptr;
  if (!GTK_IS_TREE_VIEW(list))
    return;
  area = GTK_SCROLLED_WINDOW(content);
  rows = GTK_TREE_VIEW(list);
  g_autoptr(GList) cells = gtk_cell_layout_get_cells(GTK_CELL_LAYOUT(gtk_tree_view_get_column(rows, 0)));
  cell = GTK_CELL_RENDERER(cells->data);
}

} // namespace quorvel
