#include "layout/focusAsWhole.h"

#include <gtk/gtk.h>

namespace quorvel {
namespace {

/// Controllers have no widget any longer once it has gone.
gboolean remove(gpointer controller) {
  auto* focus = GTK_EVENT_CONTROLLER(controller);
  if (auto* container = gtk_event_controller_get_widget(focus))
    gtk_widget_remove_controller(container, focus);
  return G_SOURCE_REMOVE;
}

// Newer toolkits still use a controller that has just told of something.
void onChange(GtkEventController* focus, GParamSpec*, gpointer) {
  if (gtk_event_controller_focus_is_focus(GTK_EVENT_CONTROLLER_FOCUS(focus)))
    return;
  gtk_widget_set_focusable(gtk_event_controller_get_widget(focus), false);
  g_signal_handlers_disconnect_by_func(focus, reinterpret_cast<gpointer>(onChange), nullptr);
  g_idle_add_full(G_PRIORITY_DEFAULT_IDLE, remove, g_object_ref(focus), g_object_unref);
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
