#pragma once

#include "observation/ObservableObject.h"
#include "preferences/FileWatch.h"
#include "preferences/PreferenceKey.h"
#include "preferences/PreferencesFile.h"

#include <array>
#include <chrono>
#include <optional>
#include <string>

namespace quorvel {

/// The user's switches, kept in a file that this and every other running program of the user follow.
///
/// The file is written only when a switch is flipped, and at once; it holds the keys that were ever flipped,
/// all others have their default. A change made by another program arrives, announced, through the main loop.
/// When the file cannot be written, or another program keeps it locked, the switch works all the same;
/// writing is tried again until it succeeds or somebody else flips that switch. Nothing ever waits for that
/// but the end, for a second at most. Belongs to the main thread.
class Preferences : public ObservableObject {
 public:
  /// Watches the file at `path`, whose folder is made (0700) so that it can be watched; the file is not made.
  explicit Preferences(const std::string& path = standardPath());
  ~Preferences();

  /// `quorvel/preferences.ini` in the user's configuration folder.
  static std::string standardPath();

  bool isOn(PreferenceKey key) const;
  /// Flips the switch to `isOn` and stores it; does nothing where it stands so already.
  void set(PreferenceKey key, bool isOn);

 private:
  using Values = std::array<std::optional<bool>, allCases<PreferenceKey>().size()>;
  static bool shown(PreferenceKey key, const Values& stored, const Values& unstored);
  static Values valuesIn(const PreferencesText& text);

  bool isStored() const { return unstored_ == Values{}; }
  void store();
  std::optional<Values> write(std::chrono::milliseconds patience) const;
  void storeLater();
  void followFile();
  void readFile();
  void adopt(const Values& stored, const Values& unstored);

  PreferencesFile file_;
  FileWatch watch_;
  Values stored_;
  Values unstored_;
  std::chrono::milliseconds untilNextTry_; ///< after one that failed
  sigc::connection nextTry_;
};

} // namespace quorvel
