#pragma once

#include <filesystem>
#include <fstream>
#include <glibmm/miscutils.h>
#include <gtest/gtest.h>
#include <gtkmm/settings.h>
#include <string>

namespace quorvel::tests {

/// A theme that somebody has chosen, for as long as this lives: on the desktop, or in the environment, which
/// has the last word.
class ThemeChoice {
 public:
  enum class Place { desktop, environment };
  /// "Paper" is one that no toolkit has: black on white throughout, and without a dark form.
  ThemeChoice(Place place, const std::string& theme) {
    const auto folder = std::filesystem::path(Glib::get_user_data_dir()) / "themes/Paper/gtk-4.0";
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "gtk.css") << "* { color: black; background: white; }";
    if (place == Place::environment)
      g_setenv("GTK_THEME", theme.c_str(), true);
    // The toolkit looks again when the desktop's theme changes.
    name_ = place == Place::desktop ? theme : "Default-of-before";
  }
  ~ThemeChoice() {
    g_unsetenv("GTK_THEME");
    name_ = "Default";
  }
  ThemeChoice(const ThemeChoice&) = delete;
  ThemeChoice& operator=(const ThemeChoice&) = delete;

 private:
  Glib::PropertyProxy<Glib::ustring> name_ = Gtk::Settings::get_default()->property_gtk_theme_name();
};

using ChosenTheme = std::pair<ThemeChoice::Place, std::string>;

/// What a desktop or its user may choose.
inline std::vector<ChosenTheme> themesToChoose() {
  std::vector<ChosenTheme> all;
  for (const auto place : {ThemeChoice::Place::desktop, ThemeChoice::Place::environment})
    for (const auto* theme :
         {"Default", "Adwaita", "Adwaita:dark", "HighContrast", "HighContrastInverse", "Paper"})
      all.emplace_back(place, theme);
  return all;
}

/// "OfEnvironmentAdwaita".
inline std::string nameOfChoice(const testing::TestParamInfo<ChosenTheme>& choice) {
  auto [place, theme] = choice.param;
  std::erase(theme, ':');
  return (place == ThemeChoice::Place::desktop ? "OfDesktop" : "OfEnvironment") + theme;
}

} // namespace quorvel::tests
