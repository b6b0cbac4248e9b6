#pragma once

#include "e2e/stage/Accessible.h"
#include "e2e/stage/ChildProcess.h"

#include <map>
#include <string>
#include <vector>

namespace quorvel::e2e {

struct Size {
  int width = 0;
  int height = 0;
  bool operator==(const Size&) const = default;
};

/// The program under test, run as a user would and watched from outside: through the accessibility tree, with
/// keys, and with the pointer.
class Client {
 public:
  /// The border that the toolkit draws around a window, both sides together, on a display that mixes no
  /// shadows.
  static constexpr int border = 10;

  /// Starts the program, perhaps through another command that puts it into special surroundings.
  explicit Client(const Environment& environment = {}, const Arguments& through = {});

  /// Its windows as far as they are on the screen.
  std::vector<Accessible> windows() const;
  /// The main window, or any other by its title.
  std::optional<Accessible> window(const std::string& title = "Quorvel") const;

  /// A button, row or menu entry by its name.
  std::optional<Accessible> control(const std::string& name) const;
  /// Presses it as soon as it is enabled; the test fails when it never is.
  void press(const std::string& name) const;
  bool isEnabled(const std::string& name) const;

  /// What the address field shows.
  std::string address() const;
  /// The names of the sidebar rows that are highlighted.
  std::vector<std::string> highlighted() const;
  /// Whether the spinner shows over the page.
  bool spins() const;

  /// The name of what has the focus in the main window.
  std::string focused() const;

  /// The names of a window's objects of one kind, in reading order.
  std::vector<std::string> namesIn(const std::string& title, AtspiRole role) const;
  /// Flips a switch in a window, and says how one stands.
  void toggle(const std::string& title, const std::string& name) const;
  bool isOn(const std::string& title, const std::string& name) const;

  /// Presses keys together, as xdotool names them: "ctrl+n".
  void type(const std::string& keys) const;
  void write(const std::string& text) const;
  /// Presses the mouse button in the middle of the page.
  void clickPage() const;
  /// The main window's size in pixels, with whatever frame it draws around itself.
  Size size() const;
  void resize(Size size) const;
  /// The least size it lets a window manager give it.
  Size minimumSize() const;
  /// Kills the process that renders the page, as a crash would.
  void killWebProcess() const;

  /// The title of the window that the keyboard writes to.
  std::string windowWithKeys() const;
  /// The main window as xdotool knows it.
  std::string xWindow() const;

  ChildProcess& process() { return process_; }
  /// Everything it printed.
  std::string said() const;

 private:
  void lookAround() const;
  std::optional<Accessible> switchIn(const std::string& title, const std::string& name) const;

  ChildProcess process_;
  // What was found in the main window, kept because looking for it takes long.
  mutable std::map<std::string, Accessible> controls_;
  mutable std::vector<Accessible> buttons_;
  mutable std::optional<Accessible> address_;
  mutable std::optional<Accessible> pageArea_;
};

} // namespace quorvel::e2e
