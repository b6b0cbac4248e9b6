#pragma once

#include <sigc++/sigc++.h>

namespace quorvel {

/// A model that tells its observers that it is about to change.
///
/// Announcements come before the change: whoever reads the model while being told still sees the old value.
/// Everything runs on the main thread. An observer that is a `sigc::trackable` is forgotten when it goes; any
/// other observer keeps the returned connection and disconnects it itself.
class ObservableObject {
 public:
  ObservableObject() = default;
  ObservableObject(const ObservableObject&) = delete;
  ObservableObject& operator=(const ObservableObject&) = delete;

  /// Emitted once before every assignment to a published field, also when the value stays the same.
  sigc::signal<void()>& objectWillChange() { return objectWillChange_; }

 protected:
  ~ObservableObject() = default;

 private:
  sigc::signal<void()> objectWillChange_;
};

} // namespace quorvel
