#pragma once

#include <string>

namespace quorvel {

/// What a page wants to have said or asked before it goes on.
struct PageDialog {
  enum class Kind {
    alert,   ///< says something
    confirm, ///< asks for a yes or no
    prompt,  ///< asks for a text
    leave,   ///< asks whether the page may be left
  };
  Kind kind = Kind::alert;
  std::string text;   ///< cut where it is longer than anybody reads
  std::string answer; ///< that is proposed, cut in the same way
  int number = 1;     ///< among the dialogs of its page

  /// The page has had its say before: it may be told to be quiet.
  bool canBeSilenced() const { return number > 1; }

  bool operator==(const PageDialog&) const = default;
};

/// What the owner makes of it.
struct DialogAnswer {
  bool isYes = false;
  std::string text = {}; ///< that was asked for
  /// The page shall show no more dialogs.
  bool silencesPage = false;
};

} // namespace quorvel
