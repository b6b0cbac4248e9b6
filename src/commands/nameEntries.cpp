#include "commands/nameEntries.h"

#include "layout/accessible.h"

#include <gtk/gtk.h>
#include <gtkmm/popover.h>

namespace quorvel {
namespace {

bool isEntry(Gtk::Widget& widget) {
  return g_object_class_find_property(G_OBJECT_GET_CLASS(widget.gobj()), "menu-name");
}

void nameEntriesOf(Gtk::Widget& widget) {
  if (isEntry(widget)) {
    Glib::ustring text;
    widget.get_property("text", text);
    gtk_accessible_reset_relation(GTK_ACCESSIBLE(widget.gobj()), GTK_ACCESSIBLE_RELATION_LABELLED_BY);
    setAccessibleName(widget, text);
  }
  for (auto* child = widget.get_first_child(); child; child = child->get_next_sibling())
    nameEntriesOf(*child);
}

} // namespace

void nameEntries(Gtk::Widget& menus) {
  if (auto* menu = dynamic_cast<Gtk::Popover*>(&menus))
    menu->signal_map().connect([menu] { nameEntriesOf(*menu); });
  for (auto* child = menus.get_first_child(); child; child = child->get_next_sibling())
    nameEntries(*child);
}

} // namespace quorvel
