#pragma once

#include "commands/SecondaryWindow.h"

namespace quorvel {

/// Says in a sentence that the program had to stop, and closes.
class FailureWindow : public SecondaryWindow {
 public:
  explicit FailureWindow(const Glib::ustring& sentence);
};

} // namespace quorvel
