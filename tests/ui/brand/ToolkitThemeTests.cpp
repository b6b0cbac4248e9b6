#include "support/TestWindow.h"
#include "support/ThemeChoice.h"

#include <gtkmm/entry.h>

namespace quorvel {
namespace {

using tests::ThemeChoice;

// Nothing in the project's own style is said of a plain entry.
TEST(ToolkitTheme, WhatTheToolkitDrawsByItselfIsDarkWhateverThemeIsChosen) {
  Gtk::Entry entry;
  const tests::TestWindow screen(entry);
  for (const auto place : {ThemeChoice::Place::desktop, ThemeChoice::Place::environment})
    for (const auto* theme :
         {"Default", "Default:dark", "Default-dark", "Adwaita", "Adwaita:dark", "Adwaita-dark",
          "HighContrast", "HighContrast:dark", "HighContrastInverse", "Paper"}) {
      const ThemeChoice choice(place, theme);
      const auto ink = tests::inkOf(entry);
      EXPECT_GT(std::min({ink.red, ink.green, ink.blue}), 0.8)
          << theme << " on place " << static_cast<int>(place);
    }
}

} // namespace
} // namespace quorvel
