#include "engine/FloodGauge.h"

#include <glibmm/main.h>
#include <utility>

namespace quorvel {
namespace {

constexpr std::chrono::milliseconds longest{500}; // that an honest page takes
constexpr std::chrono::seconds moment{3};

} // namespace

FloodGauge::FloodGauge(WebKitWebView* view) : view_(view) {
  const auto onQuestion =
      +[](WebKitWebView*, WebKitPolicyDecision*, WebKitPolicyDecisionType, FloodGauge* self) -> gboolean {
    self->noteWord();
    return FALSE; // others decide
  };
  g_signal_connect(view_, "decide-policy", G_CALLBACK(onQuestion), this);
  const auto onWord = +[](FloodGauge* self) { self->noteWord(); };
  for (const char* signal : {"notify::uri", "notify::title"})
    g_signal_connect_swapped(view_, signal, G_CALLBACK(onWord), this);
}

FloodGauge::~FloodGauge() {
  g_signal_handlers_disconnect_by_data(view_, this);
}

bool FloodGauge::isFlooded() const {
  const auto now = Clock::now();
  return waitsSince_ ? now - *waitsSince_ > longest : lastWait_ > longest && now - lastTurn_ < moment;
}

void FloodGauge::noteWord() {
  if (waitsSince_)
    return;
  waitsSince_ = Clock::now();
  Glib::signal_idle().connect_once(sigc::mem_fun(*this, &FloodGauge::noteTurn), Glib::PRIORITY_DEFAULT);
}

void FloodGauge::noteTurn() {
  lastTurn_ = Clock::now();
  lastWait_ = lastTurn_ - *std::exchange(waitsSince_, std::nullopt);
}

} // namespace quorvel
