#include "engine/SignInQuestions.h"

#include "engine/GObjectPointer.h"

namespace quorvel {

SignInQuestions::SignInQuestions(WebKitWebView* view) : view_(view) {
  const auto onQuestion =
      +[](WebKitWebView*, WebKitAuthenticationRequest* question, SignInQuestions* self) -> gboolean {
    self->note(question);
    return FALSE; // the engine asks
  };
  g_signal_connect(view_, "authenticate", G_CALLBACK(onQuestion), this);
  const auto onEvent = +[](WebKitWebView*, WebKitLoadEvent event, SignInQuestions* self) {
    // The new page's own question is answered before it is committed.
    if (event == WEBKIT_LOAD_STARTED || event == WEBKIT_LOAD_COMMITTED)
      self->cancelAll();
  };
  g_signal_connect(view_, "load-changed", G_CALLBACK(onEvent), this);
  const auto onEnd = +[](SignInQuestions* self) { self->cancelAll(); };
  g_signal_connect_swapped(view_, "web-process-terminated", G_CALLBACK(onEnd), this);
}

SignInQuestions::~SignInQuestions() {
  g_signal_handlers_disconnect_by_data(view_, this);
  for (auto* each : open_)
    g_object_weak_unref(G_OBJECT(each), forget, this);
}

void SignInQuestions::note(WebKitAuthenticationRequest* question) {
  open_.push_back(question);
  g_object_weak_ref(G_OBJECT(question), forget, this);
}

void SignInQuestions::forget(gpointer self, GObject* question) {
  std::erase(static_cast<SignInQuestions*>(self)->open_,
             reinterpret_cast<WebKitAuthenticationRequest*>(question));
}

void SignInQuestions::cancelAll() {
  std::vector<GObjectPointer<WebKitAuthenticationRequest>> all;
  for (auto* each : open_)
    all.push_back(referenceTo(each));
  for (const auto& each : all)
    webkit_authentication_request_cancel(each.get()); // of one that is answered nothing changes
}

} // namespace quorvel
