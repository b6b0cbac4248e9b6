#pragma once

struct _XDisplay;

namespace quorvel::tests {

/// A display for this process alone, as long as this lives: windows take the focus from each other, and a
/// display has one pointer and one keyboard.
///
/// QUORVEL_DISPLAYS names the displays that there are; without it there is the one in DISPLAY. Waits until
/// one of them is free, and has DISPLAY name it. Throws std::runtime_error where there is none to wait for.
class DisplayLease {
 public:
  DisplayLease();
  ~DisplayLease();
  DisplayLease(const DisplayLease&) = delete;
  DisplayLease& operator=(const DisplayLease&) = delete;

 private:
  _XDisplay* connection_ = nullptr;
};

} // namespace quorvel::tests
