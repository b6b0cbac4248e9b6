#include "engine/popups.h"

#include "engine/GObjectPointer.h"
#include "engine/shortened.h"

namespace quorvel {
namespace {

/// Has what is kept of a text put in its place, where that is not all of it.
template <class Put>
void cut(const char* text, Put put) {
  if (const auto kept = shortened(text, whereTextGrows); text && kept != text)
    put(kept.c_str());
}

void cut(GtkLabel* label) {
  cut(gtk_label_get_text(label), [label](const char* kept) { gtk_label_set_text(label, kept); });
}

gboolean cutRow(GtkTreeModel* rows, GtkTreePath*, GtkTreeIter* row, gpointer) {
  for (int column = 0; column < gtk_tree_model_get_n_columns(rows); ++column) {
    if (gtk_tree_model_get_column_type(rows, column) != G_TYPE_STRING)
      continue;
    g_autofree char* text = nullptr;
    gtk_tree_model_get(rows, row, column, &text, -1);
    cut(text, [&](const char* kept) { gtk_tree_store_set(GTK_TREE_STORE(rows), row, column, kept, -1); });
  }
  return FALSE;
}

void cutCell(GtkCellRenderer* cell) {
  g_autofree char* text = nullptr;
  g_object_get(cell, "text", &text, nullptr);
  cut(text, [cell](const char* kept) { g_object_set(cell, "text", kept, nullptr); });
}

/// The choices of a field that takes nothing else, which are known by their places; or suggestions, which
/// come later, and of which the one that is taken is taken from the rows: there only the drawing is cut.
void cut(GtkTreeView* list) {
  auto* rows = gtk_tree_view_get_model(list);
  if (GTK_IS_TREE_STORE(rows)) {
    gtk_tree_model_foreach(rows, cutRow, nullptr);
    return;
  }
  g_autoptr(GList) cells = gtk_cell_layout_get_cells(GTK_CELL_LAYOUT(gtk_tree_view_get_column(list, 0)));
  for (auto* cell = cells; cell; cell = cell->next)
    g_signal_connect(cell->data, "notify::text", G_CALLBACK(cutCell), nullptr);
}

void cutIn(GtkPopover* popup) {
  auto* content = gtk_popover_get_child(popup);
  if (GTK_IS_LABEL(content))
    cut(GTK_LABEL(content));
  else if (GTK_IS_SCROLLED_WINDOW(content)) {
    auto* list = gtk_scrolled_window_get_child(GTK_SCROLLED_WINDOW(content));
    if (GTK_IS_TREE_VIEW(list))
      cut(GTK_TREE_VIEW(list));
  }
}

void follow(GtkPopover* popup) {
  cutIn(popup);
  g_signal_connect(popup, "notify::child", G_CALLBACK(cutIn), nullptr);
}

void cutLabelsIn(GtkWidget* dialog) {
  if (GTK_IS_LABEL(dialog))
    cut(GTK_LABEL(dialog));
  for (auto* each = gtk_widget_get_first_child(dialog); each; each = gtk_widget_get_next_sibling(each))
    cutLabelsIn(each);
}

} // namespace

void cutPopups(WebKitWebView* view) {
  const auto onChange = +[](GListModel* children, guint position, guint, guint added) {
    for (guint i = 0; i < added; ++i) {
      const GObjectPointer<GObject> child(G_OBJECT(g_list_model_get_item(children, position + i)));
      if (GTK_IS_POPOVER(child.get()))
        follow(GTK_POPOVER(child.get()));
      else
        cutLabelsIn(GTK_WIDGET(child.get()));
    }
  };
  auto* children = gtk_widget_observe_children(GTK_WIDGET(view));
  g_signal_connect(children, "items-changed", G_CALLBACK(onChange), nullptr);
  g_object_set_data_full(G_OBJECT(view), "quorvel-popups", children, g_object_unref);
}

} // namespace quorvel
