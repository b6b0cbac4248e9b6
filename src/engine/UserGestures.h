#pragma once

#include "engine/GObjectPointer.h"

#include <functional>
#include <set>
#include <webkit/webkit.h>

namespace quorvel {

/// Hears of each press of a button or key and each touch that a view gets, before the page does. The engine
/// itself tells whether a gesture is about, but not whether it is still the same one. The view has to outlive
/// it.
class UserGestures {
 public:
  UserGestures(WebKitWebView* view, std::function<void()> onGesture);
  ~UserGestures();
  UserGestures(const UserGestures&) = delete;
  UserGestures& operator=(const UserGestures&) = delete;

 private:
  bool isGesture(GdkEvent* event);

  WebKitWebView* view_;
  std::function<void()> onGesture_;
  GtkEventController* events_;
  std::set<guint> heldKeys_; // which repeat themselves
};

} // namespace quorvel
