#include "engine/popupTexts.h"

#include "engine/popupList.h"
#include "engine/shortened.h"

#include <string>

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
void cut(const PopupList& list) {
  auto* rows = gtk_tree_view_get_model(list.rows);
  if (GTK_IS_TREE_STORE(rows))
    gtk_tree_model_foreach(rows, cutRow, nullptr);
  else
    g_signal_connect(list.cell, "notify::text", G_CALLBACK(cutCell), nullptr);
  g_object_set(list.cell, "single-paragraph-mode", TRUE, nullptr);
}

} // namespace

void cutPopupTexts(GtkPopover* popup) {
  auto* content = gtk_popover_get_child(popup);
  if (GTK_IS_LABEL(content))
    cut(GTK_LABEL(content));
  else if (const PopupList list(popup); list.rows)
    cut(list);
}

void cutQuestion(GtkWidget* question) {
  if (GTK_IS_LABEL(question))
    cut(GTK_LABEL(question));
  for (auto* each = gtk_widget_get_first_child(question); each; each = gtk_widget_get_next_sibling(each))
    cutQuestion(each);
}

} // namespace quorvel
