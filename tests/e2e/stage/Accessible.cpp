#include "e2e/stage/Accessible.h"

namespace quorvel::e2e {
namespace {

std::string taken(char* text) {
  std::string result = text ? text : "";
  g_free(text);
  return result;
}

/// libatspi starts on first use, when the test's own bus is there.
AtspiAccessible* desktop() {
  static const bool started = [] {
    atspi_init();
    return true;
  }();
  return started ? atspi_get_desktop(0) : nullptr;
}

} // namespace

std::optional<Accessible> Accessible::ofProcess(pid_t id) {
  for (const auto& application : Accessible(desktop()).children())
    if (atspi_accessible_get_process_id(application.object_.get(), nullptr) == static_cast<guint>(id)) {
      atspi_accessible_set_cache_mask(application.object_.get(), ATSPI_CACHE_NONE);
      return application;
    }
  return std::nullopt;
}

std::string Accessible::name() const {
  return taken(atspi_accessible_get_name(object_.get(), nullptr));
}

AtspiRole Accessible::role() const {
  return atspi_accessible_get_role(object_.get(), nullptr);
}

bool Accessible::is(AtspiStateType state) const {
  const auto states = atspi_accessible_get_state_set(object_.get());
  const bool result = states && atspi_state_set_contains(states, state);
  if (states)
    g_object_unref(states);
  return result;
}

std::vector<Accessible> Accessible::children() const {
  std::vector<Accessible> result;
  const int count = atspi_accessible_get_child_count(object_.get(), nullptr);
  for (int i = 0; i < count; ++i)
    if (const auto child = atspi_accessible_get_child_at_index(object_.get(), i, nullptr))
      result.push_back(Accessible(child));
  return result;
}

std::optional<Accessible> Accessible::parent() const {
  const auto object = atspi_accessible_get_parent(object_.get(), nullptr);
  return object ? std::optional(Accessible(object)) : std::nullopt;
}

void Accessible::collect(std::vector<Accessible>& found) const {
  found.push_back(*this);
  for (const auto& child : children())
    child.collect(found);
}

std::vector<Accessible> Accessible::all() const {
  std::vector<Accessible> found;
  collect(found);
  return found;
}

bool Accessible::activate() const {
  const auto action = atspi_accessible_get_action_iface(object_.get());
  const bool done = action && atspi_action_do_action(action, 0, nullptr);
  if (action)
    g_object_unref(action);
  return done;
}

bool Accessible::grabFocus() const {
  const auto component = atspi_accessible_get_component_iface(object_.get());
  const bool done = component && atspi_component_grab_focus(component, nullptr);
  if (component)
    g_object_unref(component);
  return done;
}

std::string describe(const Accessible& object, int depth) {
  std::string result(static_cast<std::size_t>(2 * depth), ' ');
  result += taken(atspi_role_get_name(object.role())) + " \"" + object.name() + "\"";
  for (const auto& [state, word] :
       {std::pair{ATSPI_STATE_FOCUSED, " focused"}, std::pair{ATSPI_STATE_SELECTED, " selected"},
        std::pair{ATSPI_STATE_PRESSED, " pressed"}, std::pair{ATSPI_STATE_CHECKED, " checked"},
        std::pair{ATSPI_STATE_SENSITIVE, " sensitive"}, std::pair{ATSPI_STATE_SHOWING, " showing"},
        std::pair{ATSPI_STATE_VISIBLE, " visible"}})
    if (object.is(state))
      result += word;
  result += '\n';
  for (const auto& child : object.children())
    result += describe(child, depth + 1);
  return result;
}

} // namespace quorvel::e2e
