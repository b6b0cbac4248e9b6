#include "layout/scrollIntoView.h"

#include <gtkmm/viewport.h>

namespace quorvel {

void scrollIntoView(Gtk::Widget& widget, int margin) {
  auto* viewport = dynamic_cast<Gtk::Viewport*>(widget.get_ancestor(GTK_TYPE_VIEWPORT));
  if (!viewport || widget.get_height() == 0)
    return;
  const auto scroll = viewport->get_vadjustment();
  double x = 0, y = 0;
  widget.translate_coordinates(*viewport, 0, 0, x, y);
  const double top = y + scroll->get_value();
  scroll->clamp_page(top - margin, top + widget.get_height() + margin);
}

} // namespace quorvel
