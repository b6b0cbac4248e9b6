#pragma once

#include "observation/ObservableObject.h"
#include "preferences/PreferenceKey.h"
#include "preferences/PreferencesFile.h"

#include <array>
#include <giomm/filemonitor.h>
#include <optional>
#include <string>

namespace quorvel {

/// The user's switches, kept in a file that this and every other running program of the user follow.
///
/// The file is written only when a switch is flipped, and at once; it holds the keys that were ever flipped,
/// all others have their default. A change made by another program arrives, announced, through the main loop.
/// When the file cannot be written the switch still works until the program ends, and is written along with
/// the next flip that can be. Belongs to the main thread.
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
  static Values valuesIn(const PreferencesText& text);

  void watch();
  void store();
  void reload();

  PreferencesFile file_;
  Values stored_;
  Values unstored_;
  Glib::RefPtr<Gio::FileMonitor> monitor_;
};

} // namespace quorvel
