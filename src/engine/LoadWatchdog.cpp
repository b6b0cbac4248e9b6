#include "engine/LoadWatchdog.h"

#include "engine/engineTexts.h"

#include <utility>

namespace quorvel {

LoadWatchdog::LoadWatchdog(WebKitWebView* view, TimerFunction startTimer, Owner owner)
    : view_(view), startTimer_(startTimer), owner_(std::move(owner)),
      timer_(std::move(startTimer), [this] { onStall(); }) {
  const auto onEvent =
      +[](WebKitWebView*, WebKitLoadEvent event, LoadWatchdog* self) { self->noteEvent(event); };
  g_signal_connect(view_, "load-changed", G_CALLBACK(onEvent), this);
  const auto onProgress = +[](LoadWatchdog* self) { self->noteProgress(); };
  for (const char* signal :
       {"notify::is-loading", "notify::estimated-load-progress", "resource-load-started"})
    g_signal_connect_swapped(view_, signal, G_CALLBACK(onProgress), this);
  const auto onQuestion = +[](WebKitWebView*, WebKitAuthenticationRequest*, LoadWatchdog* self) -> gboolean {
    self->leaveToOwner();
    return FALSE; // the engine asks
  };
  g_signal_connect(view_, "authenticate", G_CALLBACK(onQuestion), this);
}

LoadWatchdog::~LoadWatchdog() {
  forgetQuestion();
  followDocument(nullptr);
  g_signal_handlers_disconnect_by_data(view_, this);
}

void LoadWatchdog::begin() {
  forgetQuestion();
  setGivenUp(false);
  request_ = Request::asked;
  address_ = addressOf(view_);
  timer_.restart();
}

void LoadWatchdog::noteEvent(WebKitLoadEvent event) {
  forgetQuestion();
  setGivenUp(false);
  // Another load than the announced one.
  if (event == WEBKIT_LOAD_STARTED && (request_ == Request::answered || addressOf(view_) != address_))
    request_ = Request::none;
  if (event == WEBKIT_LOAD_COMMITTED && request_ == Request::asked) {
    request_ = Request::answered;
    followDocument(webkit_web_view_get_main_resource(view_));
  }
  if (event == WEBKIT_LOAD_FINISHED)
    request_ = Request::none;
  if (webkit_web_view_is_loading(view_))
    timer_.restart();
  noteProgress();
}

/// The server asks who this is. Nobody takes the question away while its owner looks for the answer.
void LoadWatchdog::leaveToOwner() {
  request_ = Request::none;
  timer_.stop();
}

/// Only what the announced request itself does counts while it is under way.
void LoadWatchdog::noteProgress() {
  if (!webkit_web_view_is_loading(view_)) {
    forgetQuestion();
    setGivenUp(false);
    request_ = Request::none;
    timer_.stop();
  } else if (request_ == Request::none) {
    timer_.restart();
  }
}

void LoadWatchdog::followDocument(WebKitWebResource* document) {
  if (document_)
    g_signal_handlers_disconnect_by_data(document_.get(), this);
  document_ = referenceTo(document);
  knownLength_ = 0;
  const auto onEnd = +[](LoadWatchdog* self) { self->noteEndOfRequest(); };
  if (document)
    for (const char* signal : {"finished", "failed"})
      g_signal_connect_swapped(document, signal, G_CALLBACK(onEnd), this);
}

void LoadWatchdog::noteEndOfRequest() {
  request_ = Request::none;
  noteProgress();
}

void LoadWatchdog::onStall() {
  if (request_ == Request::asked)
    giveUp();
  else
    ask();
}

void LoadWatchdog::ask() {
  WebKitWebResource* document = webkit_web_view_get_main_resource(view_);
  if (!document)
    return;
  const auto onData = +[](GObject* resource, GAsyncResult* result, gpointer self) {
    gsize length = 0;
    g_autoptr(GError) error = nullptr;
    g_free(webkit_web_resource_get_data_finish(WEBKIT_WEB_RESOURCE(resource), result, &length, &error));
    if (!g_error_matches(error, G_IO_ERROR, G_IO_ERROR_CANCELLED))
      static_cast<LoadWatchdog*>(self)->onAnswer(!error, length);
  };
  webkit_web_resource_get_data(document, question_.get(), onData, this);
  answerTimer_ = startTimer_(answerLimit, [this] { setGivenUp(true); });
}

void LoadWatchdog::onAnswer(bool isKnown, gsize length) {
  answerTimer_.disconnect();
  setGivenUp(false);
  const bool isSilent = isKnown && length <= std::exchange(knownLength_, length);
  if (request_ == Request::answered && isSilent)
    giveUp();
  else
    timer_.restart();
}

void LoadWatchdog::forgetQuestion() {
  answerTimer_.disconnect();
  g_cancellable_cancel(question_.get());
  question_.reset(g_cancellable_new());
}

void LoadWatchdog::giveUp() {
  request_ = Request::none;
  setGivenUp(true);
  owner_.onGivingUp();
  webkit_web_view_stop_loading(view_);
}

void LoadWatchdog::setGivenUp(bool hasGivenUp) {
  if (std::exchange(hasGivenUp_, hasGivenUp) != hasGivenUp)
    owner_.onChange();
}

} // namespace quorvel
