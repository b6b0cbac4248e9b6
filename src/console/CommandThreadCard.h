#pragma once

#include "brand/buttons.h"
#include "layout/stacks.h"

namespace quorvel {

/// A fixed conversation with a message field below it.
///
/// Sending runs `send`, whatever the field holds, and leaves the field as it is. The draft belongs to the
/// card: a new card starts with its initial text.
class CommandThreadCard : public VStack {
 public:
  explicit CommandThreadCard(Action send);
};

} // namespace quorvel
