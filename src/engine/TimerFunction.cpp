#include "engine/TimerFunction.h"

#include <glibmm/main.h>
#include <utility>

namespace quorvel {

TimerFunction mainLoopTimer() {
  return [](std::chrono::milliseconds delay, sigc::slot<void()> task) {
    return Glib::signal_timeout().connect(
        [task = std::move(task)] {
          task();
          return false;
        },
        static_cast<unsigned>(delay.count()), Glib::PRIORITY_HIGH); // a page may have much to say
  };
}

} // namespace quorvel
