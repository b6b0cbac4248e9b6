#include "engine/tabKey.h"

namespace quorvel {
namespace {

constexpr auto eventKey = "quorvel-tab-event";

/// The engine keeps a text view inside its own for input methods. As a stop of the Tab key it would never be
/// left (WebKitGTK 2.50 and 2.52).
void passByTextView(GtkWidget* view) {
  for (auto* child = gtk_widget_get_first_child(view); child; child = gtk_widget_get_next_sibling(child))
    gtk_widget_set_focusable(child, FALSE);
}

bool isTab(guint key) {
  return key == GDK_KEY_Tab || key == GDK_KEY_ISO_Left_Tab || key == GDK_KEY_KP_Tab;
}

/// True for a key that has done its work and is to go no further.
gboolean onPress(GtkEventController* keys, guint key, guint, GdkModifierType, GtkWidget* view) {
  if (!isTab(key))
    return FALSE;
  auto* event = gtk_event_controller_get_current_event(keys);
  if (event == g_object_get_data(G_OBJECT(keys), eventKey) && !gtk_widget_has_focus(view))
    return TRUE;
  g_object_set_data_full(G_OBJECT(keys), eventKey, gdk_event_ref(event),
                         [](gpointer seen) { gdk_event_unref(static_cast<GdkEvent*>(seen)); });
  return FALSE;
}

/// The listener belongs to the view and goes with it from window to window.
void onRoot(GtkWidget* view, GParamSpec*, GtkEventController* keys) {
  if (auto* before = gtk_event_controller_get_widget(keys))
    gtk_widget_remove_controller(before, keys);
  if (auto* root = gtk_widget_get_root(view))
    gtk_widget_add_controller(GTK_WIDGET(root), GTK_EVENT_CONTROLLER(g_object_ref(keys)));
}

/// Where a key leads out of the page, the engine moves the focus on and also gives the key back, which would
/// move it once more (WebKitGTK 2.50).
void leaveOnce(GtkWidget* view) {
  auto* keys = gtk_event_controller_key_new();
  gtk_event_controller_set_propagation_phase(keys, GTK_PHASE_CAPTURE);
  g_signal_connect_object(keys, "key-pressed", G_CALLBACK(onPress), view, GConnectFlags(0));
  const auto release = +[](gpointer listener, GClosure*) { g_object_unref(listener); };
  g_signal_connect_data(view, "notify::root", G_CALLBACK(onRoot), keys, release, GConnectFlags(0));
}

} // namespace

void keepTabMoving(WebKitWebView* view) {
  passByTextView(GTK_WIDGET(view));
  leaveOnce(GTK_WIDGET(view));
}

} // namespace quorvel
