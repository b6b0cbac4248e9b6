#pragma once

namespace quorvel {

/// What there is to do when the application has finished launching.
class AppDelegate {
 public:
  /// Brings the application's window to the front; those beside it stay as they are. Without an application
  /// the program ends: that is a mistake in its own code.
  void applicationDidFinishLaunching();
};

} // namespace quorvel
