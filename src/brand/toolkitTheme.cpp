#include "brand/toolkitTheme.h"

#include <algorithm>
#include <array>
#include <gtkmm/cssprovider.h>
#include <gtkmm/settings.h>
#include <gtkmm/stylecontext.h>
#include <string>

namespace quorvel {
namespace {

/// Above the theme, which the toolkit counts among the settings, and below the rules of this project.
constexpr int aboveTheme = GTK_STYLE_PROVIDER_PRIORITY_SETTINGS + 1;

/// What the toolkit's own dark themes are called, in the form that the environment names them by.
constexpr std::array ownDarkThemes{"Default:dark", "Default-dark", "Adwaita:dark", "Adwaita-dark",
                                   "HighContrast:dark"};

/// As the toolkit finds it. What the environment names goes first, and stays light unless it says otherwise;
/// the desktop's is dark if it can be.
std::string themeInUse(const Gtk::Settings& settings) {
  if (const char* named = g_getenv("GTK_THEME"); named && *named)
    return named;
  const auto name = settings.property_gtk_theme_name().get_value().raw();
  return name.ends_with("-dark") ? name : name + ":dark";
}

} // namespace

void keepToolkitDark() {
  const auto display = Gdk::Display::get_default();
  const auto settings = Gtk::Settings::get_for_display(display);
  settings->property_gtk_application_prefer_dark_theme() = true;
  const auto nothing = Gtk::CssProvider::create(), darkTheme = Gtk::CssProvider::create();
  nothing->load_from_data("* { all: unset; }");
  const auto follow = [display, nothing, darkTheme, settings = settings.get()] {
    const auto theme = themeInUse(*settings);
    for (const auto& provider : {nothing, darkTheme})
      Gtk::StyleContext::remove_provider_for_display(display, provider);
    if (std::ranges::find(ownDarkThemes, theme) != ownDarkThemes.end())
      return;
    darkTheme->load_named("Default", theme.starts_with("HighContrast") ? "hc-dark" : "dark");
    Gtk::StyleContext::add_provider_for_display(display, nothing, aboveTheme);
    Gtk::StyleContext::add_provider_for_display(display, darkTheme, aboveTheme + 1);
  };
  settings->property_gtk_theme_name().signal_changed().connect(follow);
  follow();
}

} // namespace quorvel
