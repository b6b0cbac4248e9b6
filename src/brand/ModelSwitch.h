#pragma once

#include <functional>
#include <gtkmm/switch.h>

namespace quorvel {

/// A switch that shows a value of a model and leaves it to the model what becomes of it.
///
/// Each action of the user (a click, Space, Return) calls `write` once and at once with the position asked
/// for. The switch itself moves only when `show()` is given another value, so a model that
/// keeps its value leaves no trace.
class ModelSwitch : public Gtk::Switch {
 public:
  explicit ModelSwitch(std::function<void(bool)> write);

  /// Shows this value: slides to it where the switch is on screen. Never calls `write`.
  void show(bool isOn);

 private:
  void takeOverClicks();
  void takeOverActivation();
  void jump();
  void slide();

  std::function<void(bool)> write_;
  bool isOn_ = false;
  bool isSliding_ = false;
};

} // namespace quorvel
