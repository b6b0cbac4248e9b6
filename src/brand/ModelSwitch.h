#pragma once

#include <functional>
#include <glibmm/ustring.h>
#include <gtkmm/switch.h>

namespace quorvel {

/// A switch that shows a value of a model and leaves it to the model what becomes of it.
///
/// Each action of the user (a click, Space, Return) calls `write` once with the position asked for. The model
/// answers through `show()` before the next frame; where it does not, the switch returns to what it showed.
class ModelSwitch : public Gtk::Switch {
 public:
  explicit ModelSwitch(std::function<void(bool)> write);

  /// Shows this value. Never calls `write`.
  void show(bool isOn);

 private:
  bool onStateSet(bool isOn);
  void returnUnlessAnswered();

  std::function<void(bool)> write_;
  bool isOn_ = false;
  bool isShowing_ = false;
};

} // namespace quorvel
