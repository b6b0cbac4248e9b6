#include "engine/swipes.h"

#include <cmath>
#include <utility>

namespace quorvel {
namespace {

struct Point {
  double x = 0, y = 0;
};

/// A finger is never quite still, nor does it move quite straight. The engine takes three times as far for a
/// swipe.
bool isSideways(const Point& movement) {
  constexpr double least = 5;
  return std::abs(movement.x) >= least && std::abs(movement.x) > std::abs(movement.y);
}

/// Turns swiping on and off for one view, with which it goes.
class SwipeSwitch {
 public:
  explicit SwipeSwitch(WebKitWebView* view) : view_(view) {}
  ~SwipeSwitch() { forgetTimer(); }
  SwipeSwitch(const SwipeSwitch&) = delete;
  SwipeSwitch& operator=(const SwipeSwitch&) = delete;

  /// The engine gets the event after this.
  void onEvent(GdkEvent* event) {
    if (follow(event) && isSideways(moved_))
      turnOnForAWhile();
  }
  void turnOff() {
    forgetTimer();
    allow(false);
  }

 private:
  bool follow(GdkEvent* event);
  void turnOnForAWhile();
  void allow(bool isAllowed);
  void forgetTimer() {
    if (timer_ != 0)
      g_source_remove(std::exchange(timer_, 0));
  }

  WebKitWebView* view_;
  Point touched_; ///< where a finger came down on the screen
  Point moved_;   ///< how far a finger has moved since it came down
  guint timer_ = 0;
};

/// Whether it is the event of a finger that moves.
bool SwipeSwitch::follow(GdkEvent* event) {
  Point point;
  switch (gdk_event_get_event_type(event)) {
  case GDK_TOUCH_BEGIN:
    gdk_event_get_position(event, &touched_.x, &touched_.y);
    return false;
  case GDK_TOUCH_UPDATE:
    gdk_event_get_position(event, &point.x, &point.y);
    moved_ = {point.x - touched_.x, point.y - touched_.y};
    return true;
  case GDK_SCROLL:
    gdk_scroll_event_get_deltas(event, &point.x, &point.y);
    moved_ = gdk_scroll_event_is_stop(event) ? Point() : Point{moved_.x + point.x, moved_.y + point.y};
    return gdk_device_get_source(gdk_event_get_device(event)) == GDK_SOURCE_TOUCHPAD;
  default:
    return false;
  }
}

void SwipeSwitch::turnOnForAWhile() {
  constexpr guint seconds = 60;
  allow(true);
  forgetTimer();
  const auto onSilence = +[](gpointer self) -> gboolean {
    static_cast<SwipeSwitch*>(self)->timer_ = 0;
    static_cast<SwipeSwitch*>(self)->allow(false);
    return G_SOURCE_REMOVE;
  };
  timer_ = g_timeout_add_seconds(seconds, onSilence, this);
}

void SwipeSwitch::allow(bool isAllowed) {
  webkit_settings_set_enable_back_forward_navigation_gestures(webkit_web_view_get_settings(view_), isAllowed);
}

} // namespace

void allowSwipes(WebKitWebView* view) {
  auto* swipes = new SwipeSwitch(view);
  g_object_set_data_full(G_OBJECT(view), "quorvel-swipes", swipes,
                         [](gpointer self) { delete static_cast<SwipeSwitch*>(self); });
  g_signal_connect_swapped(view, "unrealize", G_CALLBACK(+[](SwipeSwitch* self) { self->turnOff(); }),
                           swipes);

  auto* events = gtk_event_controller_legacy_new();
  gtk_event_controller_set_propagation_phase(events, GTK_PHASE_CAPTURE);
  const auto onEvent = +[](SwipeSwitch* self, GdkEvent* event) -> gboolean {
    self->onEvent(event);
    return GDK_EVENT_PROPAGATE;
  };
  g_signal_connect_swapped(events, "event", G_CALLBACK(onEvent), swipes);
  gtk_widget_add_controller(GTK_WIDGET(view), events);
}

} // namespace quorvel
