#include "layout/focusAsWhole.h"

#include <gtk/gtk.h>

namespace quorvel {
namespace {

void onChange(GtkEventController* focus, GParamSpec*, gpointer) {
  if (gtk_event_controller_focus_is_focus(GTK_EVENT_CONTROLLER_FOCUS(focus)))
    return;
  auto* container = gtk_event_controller_get_widget(focus);
  gtk_widget_set_focusable(container, false);
  gtk_widget_remove_controller(container, focus);
}

} // namespace

void focusAsWhole(Gtk::Widget& container) {
  if (container.is_focus())
    return;
  // As the toolkit's own, the watch can end itself.
  auto* focus = gtk_event_controller_focus_new();
  g_signal_connect(focus, "notify::is-focus", G_CALLBACK(onChange), nullptr);
  gtk_widget_add_controller(container.gobj(), focus);
  container.set_focusable(true);
  container.grab_focus();
}

} // namespace quorvel
