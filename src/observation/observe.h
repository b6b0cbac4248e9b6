#pragma once

#include "observation/ObservableObject.h"

#include <glibmm/main.h>
#include <memory>

namespace quorvel {

/// Ties a view to a model: shows the model now, and again before the next frame after any number of
/// announcements.
///
/// `refresh` re-reads the model and is the only place that writes its state into the view's widgets. It runs
/// from the main loop, after the change and ahead of layout and drawing, and whether the view is on screen or
/// not: a view may hide itself while it has nothing to show. The tie ends with the view, a `sigc::trackable`;
/// the model has to outlive it.
template <class View>
void observe(ObservableObject& model, View& view, void (View::*refresh)()) {
  constexpr int beforeLayout = Glib::PRIORITY_HIGH_IDLE;
  auto isRefreshDue = std::make_shared<bool>(false);
  const auto onDue = [&view, refresh, isRefreshDue] {
    *isRefreshDue = false;
    (view.*refresh)();
  };
  const auto onAnnouncement = [&view, onDue, isRefreshDue] {
    if (*isRefreshDue)
      return;
    *isRefreshDue = true;
    Glib::signal_idle().connect_once(sigc::track_object(onDue, view), beforeLayout);
  };
  model.objectWillChange().connect(sigc::track_object(onAnnouncement, view));
  (view.*refresh)();
}

} // namespace quorvel
