// A second program with the same preferences, for the tests:
//
//   preferences_peer PATH flip KEY TIMES    flips a switch so many times
//   preferences_peer PATH follow KEY        says "ready", then waits until the switch is flipped
//
// In the end it says whether the switch is "on" or "off".
// PATH "standard" stands for the user's own file.

#include "preferences/Preferences.h"

#include <glibmm/main.h>
#include <iostream>

using namespace quorvel;

namespace {

void flip(Preferences& preferences, PreferenceKey key, int times) {
  for (int i = 0; i < times; ++i)
    preferences.set(key, !preferences.isOn(key));
}

void follow(const Preferences& preferences, PreferenceKey key) {
  std::cout << "ready" << std::endl;
  const bool before = preferences.isOn(key);
  while (preferences.isOn(key) == before)
    Glib::MainContext::get_default()->iteration(true);
}

} // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  const auto key = fromRawValue<PreferenceKey>(arguments.at(2)).value();
  Preferences preferences(arguments[0] == "standard" ? Preferences::standardPath() : arguments[0]);
  if (arguments[1] == "flip")
    flip(preferences, key, std::stoi(arguments.at(3)));
  else
    follow(preferences, key);
  std::cout << (preferences.isOn(key) ? "on" : "off") << std::endl;
}
