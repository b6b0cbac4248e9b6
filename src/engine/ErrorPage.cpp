#include "engine/ErrorPage.h"

#include "engine/engineTexts.h"

#include <utility>

namespace quorvel {

ErrorPage::ErrorPage(WebKitWebView* view, TimerFunction startTimer)
    : view_(view), startTimer_(std::move(startTimer)) {
  const auto onEvent =
      +[](WebKitWebView*, WebKitLoadEvent event, ErrorPage* self) { self->noteEvent(event); };
  g_signal_connect(view_, "load-changed", G_CALLBACK(onEvent), this);
  const auto onEnd = +[](ErrorPage* self) { self->release(); };
  g_signal_connect_swapped(view_, "web-process-terminated", G_CALLBACK(onEnd), this);
}

ErrorPage::~ErrorPage() {
  timer_.disconnect();
  g_signal_handlers_disconnect_by_data(view_, this);
}

void ErrorPage::expect(const std::string& address) {
  state_ = State::expected;
  address_ = address;
}

void ErrorPage::letPass(std::function<void()> command) {
  command_ = std::move(command);
  timer_.disconnect();
  if (state_ == State::none)
    release();
  else
    timer_ = startTimer_(patience, [this] { release(); });
}

void ErrorPage::noteEvent(WebKitLoadEvent event) {
  if (event == WEBKIT_LOAD_COMMITTED && state_ == State::expected && addressOf(view_) == address_)
    state_ = State::committed;
  if (event == WEBKIT_LOAD_FINISHED && state_ == State::committed)
    release();
}

void ErrorPage::release() {
  timer_.disconnect();
  state_ = State::none;
  if (const auto command = std::exchange(command_, {}))
    command();
}

} // namespace quorvel
