#pragma once

#include <gtk/gtk.h>

namespace quorvel {

/// Below or above what a popup points to, in the view's own measure.
struct PopupPlace {
  GdkRectangle pointingTo;
  GtkPositionType side;
};

/// Where a popup of this size is seen in a view of this size, as near as can be to where a page wants it,
/// which may be anywhere. One that is higher than the view begins at its top.
PopupPlace popupPlace(PopupPlace wanted, GtkRequisition popup, GtkRequisition view);

/// Keeps a popup that the engine opens for the page from lying over what is beside the page, and above it the
/// address: the page chooses where it is, and what it says.
void keepInView(GtkPopover* popup);

} // namespace quorvel
