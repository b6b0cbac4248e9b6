#pragma once

#include "observation/ObservableObject.h"

#include <memory>

namespace quorvel {

/// Ties a view to a model: shows the model now, and again before the next frame after any number of
/// announcements.
///
/// `refresh` re-reads the model and is the only place that writes its state into the view's widgets. The tie
/// ends with the view; the model has to outlive it. `View` is any widget: a `sigc::trackable` with a frame
/// clock to count by (`add_tick_callback`).
template <class View>
void observe(ObservableObject& model, View& view, void (View::*refresh)()) {
  auto isRefreshDue = std::make_shared<bool>(false);
  const auto onAnnouncement = [&view, refresh, isRefreshDue] {
    if (*isRefreshDue)
      return;
    *isRefreshDue = true;
    view.add_tick_callback([&view, refresh, isRefreshDue](const auto& /*frameClock*/) {
      *isRefreshDue = false;
      (view.*refresh)();
      return false;
    });
  };
  model.objectWillChange().connect(sigc::track_object(onAnnouncement, view));
  (view.*refresh)();
}

} // namespace quorvel
