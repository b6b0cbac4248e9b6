#include "programs/client/habits.h"

#include <gtkmm/gestureclick.h>
#include <gtkmm/shortcutcontroller.h>

namespace quorvel {
namespace {

constexpr auto back = "app.back", forward = "app.forward", reload = "app.reload";
constexpr unsigned backButton = 8, forwardButton = 9;

/// The page comes first: a key bubbles up from the web view only when nothing in the page has used it. The
/// arrows never do; the web view itself sees to them.
void addKeys(Gtk::Window& window) {
  auto keys = Gtk::ShortcutController::create();
  keys->set_propagation_phase(Gtk::PropagationPhase::BUBBLE);
  const auto add = [&](const char* key, const char* action) {
    keys->add_shortcut(
        Gtk::Shortcut::create(Gtk::ShortcutTrigger::parse_string(key), Gtk::NamedAction::create(action)));
  };
  // Back is where the arrow of its button points.
  const bool isMirrored = window.get_direction() == Gtk::TextDirection::RTL;
  add("<Alt>Left", isMirrored ? forward : back);
  add("<Alt>Right", isMirrored ? back : forward);
  add("F5", reload);
  window.add_controller(keys);
}

void addMouseButton(Gtk::Window& window, unsigned button, const char* action) {
  auto click = Gtk::GestureClick::create();
  click->set_button(button);
  click->set_propagation_phase(Gtk::PropagationPhase::CAPTURE);
  auto& gesture = *click.get();
  click->signal_pressed().connect([&window, &gesture, action](int, double, double) {
    gesture.set_state(Gtk::EventSequenceState::CLAIMED);
    window.activate_action(action);
  });
  window.add_controller(click);
}

} // namespace

void addClosingKey(Gtk::Application& application) {
  application.set_accel_for_action("window.close", "<Control>w");
}

void addBrowsingHabits(Gtk::Window& window) {
  addKeys(window);
  addMouseButton(window, backButton, back);
  addMouseButton(window, forwardButton, forward);
}

} // namespace quorvel
