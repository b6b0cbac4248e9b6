#pragma once

#include <utility>

namespace quorvel {

/// Something that a page may do once for each time its owner turns to it; unused times do not add up.
class OncePerGesture {
 public:
  /// The owner has turned to the page.
  void renew() { isOwed_ = true; }
  /// Whether the page may do it now; then it has.
  bool take() { return std::exchange(isOwed_, false); }

 private:
  bool isOwed_ = false;
};

} // namespace quorvel
