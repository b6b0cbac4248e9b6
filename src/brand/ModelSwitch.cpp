#include "brand/ModelSwitch.h"

#include <gtkmm/gestureclick.h>
#include <utility>

namespace quorvel {

ModelSwitch::ModelSwitch(std::function<void(bool)> write) : write_(std::move(write)) {
  takeOverClicks();
  takeOverActivation();
}

void ModelSwitch::show(bool isOn) {
  if (isOn == isOn_)
    return;
  isOn_ = isOn;
  if (get_mapped() && get_active() != isOn)
    slide();
  else
    jump();
}

// The toolkit would move the switch first and tell of it when it has arrived; two clicks on the way count
// one.
void ModelSwitch::takeOverClicks() {
  const auto click = Gtk::GestureClick::create();
  click->set_propagation_phase(Gtk::PropagationPhase::CAPTURE);
  auto& gesture = *click.get();
  click->signal_pressed().connect(
      [&gesture](int, double, double) { gesture.set_state(Gtk::EventSequenceState::CLAIMED); });
  click->signal_released().connect([this](int, double x, double y) {
    if (contains(x, y))
      write_(!isOn_);
  });
  add_controller(click);
}

void ModelSwitch::takeOverActivation() {
  const auto onActivate = +[](GtkSwitch*, ModelSwitch* self) {
    if (self->isSliding_)
      return;
    self->jump();
    self->write_(!self->isOn_);
  };
  g_signal_connect(gobj(), "activate", G_CALLBACK(onActivate), this);
}

/// Stands at the value, ending a movement that is under way.
void ModelSwitch::jump() {
  set_active(isOn_);
  set_state(isOn_);
}

/// Emitting this signal is the toolkit's way to move a switch to its other position.
void ModelSwitch::slide() {
  isSliding_ = true;
  g_signal_emit_by_name(gobj(), "activate");
  isSliding_ = false;
}

} // namespace quorvel
