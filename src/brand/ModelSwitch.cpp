#include "ModelSwitch.h"

namespace quorvel {

ModelSwitch::ModelSwitch(std::function<void(bool)> write) : write_(std::move(write)) {
  signal_state_set().connect(sigc::mem_fun(*this, &ModelSwitch::onStateSet), false);
}

void ModelSwitch::show(bool isOn) {
  isOn_ = isOn;
  // Setting a position, even the present one, would end the movement that a click has just begun.
  if (get_active() == isOn && get_state() == isOn)
    return;
  isShowing_ = true;
  set_active(isOn);
  set_state(isOn);
  isShowing_ = false;
}

bool ModelSwitch::onStateSet(bool isOn) {
  if (isShowing_)
    return true;
  write_(isOn);
  returnUnlessAnswered();
  return true;
}

void ModelSwitch::returnUnlessAnswered() {
  // The first frame may begin before the model's views have been told, the second cannot.
  add_tick_callback([this, frames = 0](const auto& /*frameClock*/) mutable {
    if (++frames < 2)
      return true;
    show(isOn_);
    return false;
  });
}

} // namespace quorvel
