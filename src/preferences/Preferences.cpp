#include "preferences/Preferences.h"

#include <giomm/file.h>
#include <giomm/init.h>
#include <glibmm/miscutils.h>

namespace quorvel {
namespace {

std::size_t index(PreferenceKey key) {
  return static_cast<std::size_t>(key);
}

} // namespace

Preferences::Preferences(const std::string& path) : file_(path) {
  Gio::init();
  file_.makeFolder();
  watch(); // Before reading, so that no change falls in between.
  stored_ = valuesIn(file_.read().value_or(PreferencesText()));
}

Preferences::~Preferences() {
  if (monitor_)
    monitor_->cancel();
}

std::string Preferences::standardPath() {
  return Glib::build_filename(Glib::get_user_config_dir(), "quorvel", "preferences.ini");
}

bool Preferences::isOn(PreferenceKey key) const {
  return unstored_[index(key)].value_or(stored_[index(key)].value_or(defaultValue(key)));
}

void Preferences::set(PreferenceKey key, bool isOn) {
  if (isOn == this->isOn(key))
    return;
  objectWillChange().emit();
  unstored_[index(key)] = isOn;
  store();
}

void Preferences::watch() {
  try {
    monitor_ = Gio::File::create_for_path(file_.path())->monitor_file();
    monitor_->signal_changed().connect([this](const auto&...) { reload(); });
  } catch (const Glib::Error&) {
    // The switches still work, they only do not follow other programs.
  }
}

Preferences::Values Preferences::valuesIn(const PreferencesText& text) {
  Values values;
  for (const auto key : allCases<PreferenceKey>())
    values[index(key)] = text.value(rawValue(key));
  return values;
}

void Preferences::store() {
  const auto text = file_.edit([this](PreferencesText& edited) {
    for (const auto key : allCases<PreferenceKey>())
      if (const auto value = unstored_[index(key)])
        edited.setValue(rawValue(key), *value);
  });
  if (!text)
    return;
  stored_ = valuesIn(*text);
  unstored_ = {};
}

void Preferences::reload() {
  const auto values = valuesIn(file_.read().value_or(PreferencesText()));
  if (values == stored_)
    return;
  objectWillChange().emit();
  for (const auto key : allCases<PreferenceKey>())
    if (values[index(key)] != stored_[index(key)])
      unstored_[index(key)].reset(); // Somebody flipped it later than we did.
  stored_ = values;
}

} // namespace quorvel
