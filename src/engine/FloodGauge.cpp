#include "engine/FloodGauge.h"

#include <glibmm/main.h>
#include <utility>

namespace quorvel {
namespace {

constexpr std::chrono::seconds moment{3};
// Within a moment no honest page takes longer than this altogether.
constexpr std::chrono::milliseconds longest{500};
// Up to this any page may go on speaking.
constexpr std::chrono::milliseconds unnoticed{100};
// So few words are no flood: they wait for a program that is starting, or for a busy machine.
constexpr int wordsOfALoad = 10;

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
  const auto all = lately();
  return all.wait > longest && all.words > wordsOfALoad;
}

FloodGauge::Turn FloodGauge::lately() const {
  const auto now = Clock::now();
  Turn all{now, waitsSince_ ? now - *waitsSince_ : Clock::duration(), words_};
  for (const auto& each : turns_)
    if (now - each.at < moment) {
      all.wait += each.wait;
      all.words += each.words;
    }
  return all;
}

void FloodGauge::noteWord() {
  ++words_;
  if (const auto all = lately(); all.wait > unnoticed && all.words > wordsOfALoad)
    brake_.hold();
  if (waitsSince_)
    return;
  waitsSince_ = Clock::now();
  Glib::signal_idle().connect_once(sigc::mem_fun(*this, &FloodGauge::noteTurn), Glib::PRIORITY_DEFAULT);
}

void FloodGauge::noteTurn() {
  brake_.release();
  const auto now = Clock::now();
  turns_.push_back({now, now - *std::exchange(waitsSince_, std::nullopt), std::exchange(words_, 0)});
  while (now - turns_.front().at >= moment)
    turns_.pop_front();
}

} // namespace quorvel
