#include "engine/popups.h"

#include "engine/GObjectPointer.h"
#include "engine/popupPlace.h"
#include "engine/shortened.h"

#include <algorithm>

namespace quorvel {
namespace {

constexpr int mostLines = 20; // in a bubble, which has to find room on the screen

bool endsLine(gunichar letter) {
  switch (g_unichar_break_type(letter)) {
  case G_UNICODE_BREAK_MANDATORY:
  case G_UNICODE_BREAK_CARRIAGE_RETURN:
  case G_UNICODE_BREAK_LINE_FEED:
  case G_UNICODE_BREAK_NEXT_LINE:
    return true;
  default:
    return false;
  }
}

std::string firstLines(const std::string& text) {
  int lines = 0;
  for (const char* each = text.c_str(); *each; each = g_utf8_next_char(each))
    if (endsLine(g_utf8_get_char(each)) && ++lines == mostLines)
      return std::string(text.c_str(), each) + "…";
  return text;
}

void cut(GtkLabel* label) {
  const std::string text = gtk_label_get_text(label);
  if (const auto kept = firstLines(shortened(text.c_str(), whereTextGrows)); kept != text)
    gtk_label_set_text(label, kept.c_str());
}

/// The columns of choices that are spoken of here; the engine has more of them, suggestions have one.
enum Column { label, tip, isGroup };

/// The toolkit takes tips for markup, and names of groups; neither would show "Food & Drink".
std::string drawable(const std::string& text, int column, bool isOfGroup) {
  if (column != tip && !isOfGroup)
    return text;
  g_autofree char* escaped = g_markup_escape_text(text.c_str(), -1);
  return escaped;
}

gboolean cutRow(GtkTreeModel* rows, GtkTreePath*, GtkTreeIter* row, gpointer) {
  gboolean isOfGroup = FALSE;
  gtk_tree_model_get(rows, row, isGroup, &isOfGroup, -1);
  for (const int column : {label, tip}) {
    g_autofree char* text = nullptr;
    gtk_tree_model_get(rows, row, column, &text, -1);
    const auto kept = drawable(shortened(text, whereTextGrows), column, isOfGroup);
    if (text && kept != text)
      gtk_tree_store_set(GTK_TREE_STORE(rows), row, column, kept.c_str(), -1);
  }
  return FALSE;
}

void cutCell(GtkCellRenderer* cell) {
  g_autofree char* text = nullptr;
  g_object_get(cell, "text", &text, nullptr);
  if (const auto kept = shortened(text, whereTextGrows); text && kept != text)
    g_object_set(cell, "text", kept.c_str(), nullptr);
}

/// The choices of a field that takes nothing else, which are known by their places; or suggestions, which
/// come later, and of which the one that is taken is taken from the rows: there only the drawing is cut.
void cut(GtkTreeView* list, GtkCellRenderer* cell) {
  auto* rows = gtk_tree_view_get_model(list);
  if (GTK_IS_TREE_STORE(rows))
    gtk_tree_model_foreach(rows, cutRow, nullptr);
  else
    g_signal_connect(cell, "notify::text", G_CALLBACK(cutCell), nullptr);
  g_object_set(cell, "single-paragraph-mode", TRUE, nullptr);
}

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

/// From GTK 4.18 on (where it was seen) a popup that finds no room on the screen closes at once.
void fit(GtkTreeView* list, GtkCellRenderer* cell, int widest) {
  auto* column = gtk_tree_view_get_column(list, 0);
  gtk_tree_view_column_set_max_width(column, widest);
  int width = 0;
  gtk_widget_measure(GTK_WIDGET(list), GTK_ORIENTATION_HORIZONTAL, -1, nullptr, &width, nullptr, nullptr);
  if (width < widest)
    return;
  gtk_tree_view_column_set_min_width(column, widest); // texts that end in dots ask for next to nothing
  g_object_set(cell, "ellipsize", PANGO_ELLIPSIZE_END, nullptr);
}

/// The engine asks for as much as the field has, which may be wider than what is seen of the page.
void narrow(GtkPopover* popup, GtkScrolledWindow* content, int widest) {
  if (gtk_scrolled_window_get_min_content_width(content) <= widest)
    return;
  gtk_scrolled_window_set_min_content_width(content, widest);
  gtk_widget_set_size_request(GTK_WIDGET(popup), widest, -1);
}

GtkTreeView* listIn(GtkPopover* popup) {
  auto* content = gtk_popover_get_child(popup);
  auto* list =
      GTK_IS_SCROLLED_WINDOW(content) ? gtk_scrolled_window_get_child(GTK_SCROLLED_WINDOW(content)) : nullptr;
  return GTK_IS_TREE_VIEW(list) ? GTK_TREE_VIEW(list) : nullptr;
}

GtkCellRenderer* cellOf(GtkTreeView* list) {
  g_autoptr(GList) cells = gtk_cell_layout_get_cells(GTK_CELL_LAYOUT(gtk_tree_view_get_column(list, 0)));
  return GTK_CELL_RENDERER(cells->data);
}

void fitIn(GtkPopover* popup) {
  auto* list = listIn(popup);
  if (!list)
    return;
  const int widest = widestIn(gtk_widget_get_parent(GTK_WIDGET(popup)));
  fit(list, cellOf(list), widest);
  narrow(popup, GTK_SCROLLED_WINDOW(gtk_popover_get_child(popup)), widest);
}

void cutIn(GtkPopover* popup) {
  auto* content = gtk_popover_get_child(popup);
  if (GTK_IS_LABEL(content))
    cut(GTK_LABEL(content));
  else if (auto* list = listIn(popup))
    cut(list, cellOf(list));
}

void follow(GtkPopover* popup) {
  cutIn(popup);
  fitIn(popup);
  g_signal_connect(popup, "notify::child", G_CALLBACK(cutIn), nullptr);
  g_signal_connect(popup, "show", G_CALLBACK(fitIn), nullptr); // suggestions are there only now
  if (!GTK_IS_POPOVER_MENU(popup)) // which its owner has opened where the pointer is
    keepInView(popup);
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
