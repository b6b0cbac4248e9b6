#pragma once

#include <gtk/gtk.h>

namespace quorvel {

/// The list of choices or suggestions that the engine has in a popup of a page's, and what draws its rows.
/// Nothing in any other popup.
struct PopupList {
  explicit PopupList(GtkPopover* popup);

  GtkScrolledWindow* area = nullptr;
  GtkTreeView* rows = nullptr;
  GtkCellRenderer* cell = nullptr;
};

} // namespace quorvel
