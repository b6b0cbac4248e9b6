#include "layout/accessible.h"

#include <gtk/gtk.h>

namespace quorvel {

// Newer toolkits tell of no name where a widget is nothing in particular.
void setAccessibleName(Gtk::Widget& widget, const Glib::ustring& name) {
  if (widget.get_accessible_role() == Gtk::Accessible::Role::GENERIC)
    widget.property_accessible_role() = Gtk::Accessible::Role::GROUP;
  gtk_accessible_update_property(GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_PROPERTY_LABEL, name.c_str(),
                                 -1);
}

void setAccessibleDescription(Gtk::Widget& widget, const Glib::ustring& description) {
  gtk_accessible_update_property(GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_PROPERTY_DESCRIPTION,
                                 description.c_str(), -1);
}

// The state of being hidden would not do: newer toolkits set it back whenever the widget comes on the screen.
void setAccessiblyHidden(Gtk::Widget& widget) {
  widget.property_accessible_role() = Gtk::Accessible::Role::NONE;
}

void setAccessibleSelected(Gtk::Widget& widget, bool isSelected) {
  gtk_accessible_update_state(GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_STATE_SELECTED, isSelected, -1);
}

} // namespace quorvel
