#pragma once

#include "engine/SystemProcess.h"

#include <functional>
#include <string>
#include <vector>

namespace quorvel {

/// What a page's process lacks of being confined, seen from the program that has it: "a mount namespace" and
/// so on. Empty where it lacks nothing.
std::vector<std::string> missingFromSandbox(const SystemProcess& page, const SystemProcess& program);

/// Whether the program as a whole lives in a Flatpak or a Snap, which confines its pages with it. `root` is
/// the folder in which the machine's files are looked for.
bool isInsideOuterSandbox(const std::string& root = "/");

/// Why the engine goes without a sandbox here, in a sentence; empty where that is not known.
std::string whyUnconfined(const std::string& root = "/");

/// Looks once whether the pages' processes are confined.
///
/// The engine confines them by itself, but goes without and says nothing where it was told to, or where it
/// takes the machine for something that confines them already or cannot.
class PageSandbox {
 public:
  /// `onUnconfined` is called at most once, with what the user has to know of it.
  explicit PageSandbox(std::function<void(const std::string& warning)> onUnconfined);

  /// To be called again until there is such a process; what is seen is said on the error output.
  void look();

 private:
  std::function<void(const std::string&)> onUnconfined_;
  bool hasLooked_ = false;
};

} // namespace quorvel
