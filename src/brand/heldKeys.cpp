#include "brand/heldKeys.h"

#include <gtk/gtk.h>
#include <utility>

namespace quorvel {
namespace {

/// The key that repeats itself, if one does: the display repeats only the one that was pressed last.
struct HeldKey {
  guint code = 0;
  guint32 lastPress = 0;     ///< in milliseconds
  GtkWidget* from = nullptr; ///< what had the focus when it went down, unless that is gone
};
HeldKey heldKey;

/// Longer than any keyboard waits before it repeats a key. When nothing was heard of a key for so long,
/// another program had the focus when it was released.
constexpr guint32 longestPause = 3000;

bool activates(guint key) {
  return key == GDK_KEY_Return || key == GDK_KEY_KP_Enter || key == GDK_KEY_ISO_Enter ||
         key == GDK_KEY_space || key == GDK_KEY_KP_Space;
}

bool takesText(GtkWidget* widget) {
  return GTK_IS_EDITABLE(widget) || gtk_widget_class_get_activate_signal(GTK_WIDGET_GET_CLASS(widget)) == 0;
}

/// True for a repetition that is to go no further.
gboolean onPress(GtkEventControllerKey* keys, guint key, guint code, GdkModifierType) {
  if (!activates(key))
    return FALSE;
  const auto now = gtk_event_controller_get_current_event_time(GTK_EVENT_CONTROLLER(keys));
  auto* surroundings = gtk_event_controller_get_widget(GTK_EVENT_CONTROLLER(keys));
  auto* focus = gtk_root_get_focus(gtk_widget_get_root(surroundings));
  const bool isRepetition =
      heldKey.code == code && now - std::exchange(heldKey.lastPress, now) < longestPause;
  if (isRepetition)
    return !focus || focus != heldKey.from || !takesText(focus);
  heldKey.code = code;
  heldKey.lastPress = now;
  g_set_weak_pointer(&heldKey.from, focus);
  return FALSE;
}

void onRelease(GtkEventControllerKey*, guint, guint code, GdkModifierType) {
  if (heldKey.code == code)
    heldKey.code = 0;
}

void watch(GtkWidget* widget) {
  auto* keys = gtk_event_controller_key_new();
  gtk_event_controller_set_propagation_phase(keys, GTK_PHASE_CAPTURE);
  g_signal_connect(keys, "key-pressed", G_CALLBACK(onPress), nullptr);
  g_signal_connect(keys, "key-released", G_CALLBACK(onRelease), nullptr);
  gtk_widget_add_controller(widget, keys);
}

/// Windows and the menus over them: where a key begins its way.
gboolean onMap(GSignalInvocationHint*, guint, const GValue* values, gpointer) {
  static const GQuark isWatched = g_quark_from_static_string("quorvel-held-keys");
  auto* object = static_cast<GObject*>(g_value_get_object(values));
  if (GTK_IS_NATIVE(object) && !g_object_get_qdata(object, isWatched)) {
    g_object_set_qdata(object, isWatched, object);
    watch(GTK_WIDGET(object));
  }
  return TRUE;
}

} // namespace

void letHeldKeysActOnce() {
  static bool isDone = false;
  if (std::exchange(isDone, true))
    return;
  g_type_class_ref(GTK_TYPE_WIDGET); // which has the signal only once somebody uses it
  g_signal_add_emission_hook(g_signal_lookup("map", GTK_TYPE_WIDGET), 0, onMap, nullptr, nullptr);
}

} // namespace quorvel
