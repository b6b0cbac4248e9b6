#include "engine/LoadWatchdog.h"

#include <utility>

namespace quorvel {

LoadWatchdog::LoadWatchdog(WebKitWebView* view, TimerFunction startTimer)
    : view_(view), timer_(std::move(startTimer), [this] { onStall(); }) {
  const auto onEvent =
      +[](WebKitWebView*, WebKitLoadEvent event, LoadWatchdog* self) { self->noteEvent(event); };
  g_signal_connect(view_, "load-changed", G_CALLBACK(onEvent), this);
  const auto onProgress = +[](LoadWatchdog* self) { self->noteProgress(); };
  for (const char* signal :
       {"notify::is-loading", "notify::estimated-load-progress", "resource-load-started"})
    g_signal_connect_swapped(view_, signal, G_CALLBACK(onProgress), this);
}

LoadWatchdog::~LoadWatchdog() {
  g_cancellable_cancel(question_.get());
  g_signal_handlers_disconnect_by_data(view_, this);
}

void LoadWatchdog::noteEvent(WebKitLoadEvent event) {
  isCommitted_ = event == WEBKIT_LOAD_COMMITTED;
  knownLength_ = 0;
  noteProgress();
}

void LoadWatchdog::noteProgress() {
  if (webkit_web_view_is_loading(view_))
    timer_.restart();
  else
    timer_.stop();
}

void LoadWatchdog::onStall() {
  WebKitWebResource* document = webkit_web_view_get_main_resource(view_);
  if (!isCommitted_ || !document) {
    webkit_web_view_stop_loading(view_);
    return;
  }
  const auto onAnswer = +[](GObject* resource, GAsyncResult* result, gpointer self) {
    gsize length = 0;
    g_autoptr(GError) error = nullptr;
    g_free(webkit_web_resource_get_data_finish(WEBKIT_WEB_RESOURCE(resource), result, &length, &error));
    if (!g_error_matches(error, G_IO_ERROR, G_IO_ERROR_CANCELLED))
      static_cast<LoadWatchdog*>(self)->compareLength(length);
  };
  webkit_web_resource_get_data(document, question_.get(), onAnswer, this);
}

void LoadWatchdog::compareLength(gsize length) {
  const bool hasGrown = length > std::exchange(knownLength_, length);
  if (hasGrown)
    noteProgress();
  else
    webkit_web_view_stop_loading(view_);
}

} // namespace quorvel
