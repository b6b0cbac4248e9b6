#pragma once

#include <functional>
#include <string>

namespace quorvel {

/// Something the user can have the program do, by menu or by key.
struct Command {
  std::string action; ///< its name among the application's actions
  std::string title;  ///< with its mnemonic
  std::string key;    ///< empty where it has none
  std::function<void()> perform;
  std::function<bool()> isEnabled = [] { return true; };

  /// The title as it is read.
  std::string plainTitle() const;
};

} // namespace quorvel
