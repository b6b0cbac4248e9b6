#pragma once

#include <atspi/atspi.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quorvel::e2e {

/// One object of the accessibility tree, as an assistive program sees it: asked afresh each time, nothing is
/// cached. An object that has gone says "" to every question.
class Accessible {
 public:
  /// The top object of the process, once it has announced itself.
  static std::optional<Accessible> ofProcess(pid_t id);

  std::string name() const;
  AtspiRole role() const;
  bool is(AtspiStateType state) const;
  std::vector<Accessible> children() const;
  std::optional<Accessible> parent() const;

  /// This object and everything below it, in reading order. Each object costs some calls to the program: look
  /// once and keep what was found.
  std::vector<Accessible> all() const;

  /// Does what a click would; false when the object offers no action.
  bool activate() const;
  bool grabFocus() const;

 private:
  explicit Accessible(AtspiAccessible* object) : object_(object, g_object_unref) {}
  void collect(std::vector<Accessible>& found) const;

  std::shared_ptr<AtspiAccessible> object_;
};

/// The tree below an object, one line each: for the report of a failing test.
std::string describe(const Accessible& object, int depth = 0);

} // namespace quorvel::e2e
