#include "brand/cssClass.h"

namespace quorvel {

void setCssClass(Gtk::Widget& widget, const Glib::ustring& name, bool isOn) {
  if (isOn)
    widget.add_css_class(name);
  else
    widget.remove_css_class(name);
}

} // namespace quorvel
