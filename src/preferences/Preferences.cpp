#include "preferences/Preferences.h"

#include <algorithm>
#include <glibmm/main.h>
#include <glibmm/miscutils.h>

namespace quorvel {
namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds firstPause = 10ms;
constexpr std::chrono::milliseconds longestPause = 1min;

std::size_t index(PreferenceKey key) {
  return static_cast<std::size_t>(key);
}

} // namespace

Preferences::Preferences(const std::string& path)
    : file_(path), watch_(path, [this] { followFile(); }), untilNextTry_(firstPause) {
  file_.tidyFolder();
  stored_ = valuesIn(file_.read().value_or(PreferencesText()));
}

Preferences::~Preferences() {
  nextTry_.disconnect();
  readFile();
  if (!isStored())
    write(1s);
}

std::string Preferences::standardPath() {
  return Glib::build_filename(Glib::get_user_config_dir(), "quorvel", "preferences.ini");
}

bool Preferences::isOn(PreferenceKey key) const {
  return shown(key, stored_, unstored_);
}

void Preferences::set(PreferenceKey key, bool isOn) {
  if (isOn == this->isOn(key))
    return;
  objectWillChange().emit();
  if (!isStored())
    readFile(); // Flips that wait yield to what others have flipped since.
  unstored_[index(key)] = isOn;
  store();
}

bool Preferences::shown(PreferenceKey key, const Values& stored, const Values& unstored) {
  return unstored[index(key)].value_or(stored[index(key)].value_or(defaultValue(key)));
}

Preferences::Values Preferences::valuesIn(const PreferencesText& text) {
  Values values;
  for (const auto key : allCases<PreferenceKey>())
    values[index(key)] = text.value(rawValue(key));
  return values;
}

void Preferences::store() {
  nextTry_.disconnect();
  if (const auto written = write(0ms)) {
    untilNextTry_ = firstPause;
    adopt(*written, {});
  } else {
    storeLater();
  }
}

std::optional<Preferences::Values> Preferences::write(std::chrono::milliseconds patience) const {
  const auto text = file_.edit(
      [this](PreferencesText& edited) {
        for (const auto key : allCases<PreferenceKey>())
          if (const auto value = unstored_[index(key)])
            edited.setValue(rawValue(key), *value);
      },
      patience);
  return text ? std::optional<Values>(valuesIn(*text)) : std::nullopt;
}

/// A lock is soon gone, a full disk or a missing right may last: each pause is twice as long as the one
/// before.
void Preferences::storeLater() {
  const auto tryAgain = [this] {
    followFile();
    return false;
  };
  nextTry_ = Glib::signal_timeout().connect(tryAgain, static_cast<unsigned>(untilNextTry_.count()));
  untilNextTry_ = std::min(2 * untilNextTry_, longestPause);
}

void Preferences::followFile() {
  readFile();
  if (!isStored())
    store(); // What stood in the way may be gone.
}

void Preferences::readFile() {
  const auto values = valuesIn(file_.read().value_or(PreferencesText()));
  auto unstored = unstored_;
  for (const auto key : allCases<PreferenceKey>())
    if (values[index(key)] != stored_[index(key)])
      unstored[index(key)].reset(); // Somebody flipped it later than we did.
  adopt(values, unstored);
}

void Preferences::adopt(const Values& stored, const Values& unstored) {
  const auto isSeen = [&](PreferenceKey key) { return shown(key, stored, unstored) != isOn(key); };
  if (std::ranges::any_of(allCases<PreferenceKey>(), isSeen))
    objectWillChange().emit();
  stored_ = stored;
  unstored_ = unstored;
}

} // namespace quorvel
