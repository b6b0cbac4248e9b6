#include "engine/UserGestures.h"

#include <utility>

namespace quorvel {

UserGestures::UserGestures(WebKitWebView* view, std::function<void()> onGesture)
    : view_(view), onGesture_(std::move(onGesture)), events_(gtk_event_controller_legacy_new()) {
  gtk_event_controller_set_propagation_phase(events_, GTK_PHASE_CAPTURE);
  const auto onEvent = +[](UserGestures* self, GdkEvent* event) -> gboolean {
    if (self->isGesture(event))
      self->onGesture_();
    return GDK_EVENT_PROPAGATE;
  };
  g_signal_connect_swapped(events_, "event", G_CALLBACK(onEvent), this);
  gtk_widget_add_controller(GTK_WIDGET(view_), events_);
}

UserGestures::~UserGestures() {
  gtk_widget_remove_controller(GTK_WIDGET(view_), events_);
}

bool UserGestures::isGesture(GdkEvent* event) {
  switch (gdk_event_get_event_type(event)) {
  case GDK_BUTTON_PRESS:
  case GDK_TOUCH_BEGIN:
    return true;
  case GDK_KEY_PRESS:
    return heldKeys_.insert(gdk_key_event_get_keycode(event)).second && !gdk_key_event_is_modifier(event);
  case GDK_KEY_RELEASE:
    heldKeys_.erase(gdk_key_event_get_keycode(event));
    return false;
  case GDK_FOCUS_CHANGE:
    heldKeys_.clear(); // they may be let go elsewhere
    return false;
  default:
    return false;
  }
}

} // namespace quorvel
