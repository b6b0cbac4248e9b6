#pragma once

#include "observation/ObservableObject.h"

#include <utility>

namespace quorvel {

/// A field of an `ObservableObject` that announces each assignment before it takes effect.
///
/// It reads like the value it holds (`model.isLoading`, `store.requests->size()`), and is written by
/// assignment or, for a change in place, by `update()`. It belongs to its owner and can be neither copied nor
/// moved.
template <class Value>
class Published {
 public:
  Published(ObservableObject& owner, Value initial) : owner_(owner), value_(std::move(initial)) {}
  Published(const Published&) = delete;
  Published& operator=(const Published&) = delete;

  /// Announces, then assigns. One announcement per call, whatever the value.
  Published& operator=(Value value) {
    owner_.objectWillChange().emit();
    value_ = std::move(value);
    return *this;
  }

  /// Announces, then lets `edit` change the value in place. One announcement per call.
  template <class Edit>
  void update(Edit&& edit) {
    owner_.objectWillChange().emit();
    std::forward<Edit>(edit)(value_);
  }

  const Value& get() const { return value_; }
  operator const Value&() const { return value_; }
  const Value& operator*() const { return value_; }
  const Value* operator->() const { return &value_; }

 private:
  ObservableObject& owner_;
  Value value_;
};

} // namespace quorvel
