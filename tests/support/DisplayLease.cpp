#include "support/DisplayLease.h"

#include "support/eventually.h"

#include <X11/Xlib.h>
#include <cstdlib>
#include <sstream>
#include <stdexcept>

namespace quorvel::tests {
namespace {

/// Who owns this selection of a display has it; when its connection ends, however that comes, it is free
/// again.
constexpr auto selection = "_QUORVEL_TESTS";

std::vector<std::string> displays() {
  for (const auto* variable : {"QUORVEL_DISPLAYS", "DISPLAY"})
    if (const char* names = std::getenv(variable)) {
      std::istringstream words(names);
      return {std::istream_iterator<std::string>(words), {}};
    }
  return {};
}

/// Nothing where somebody else has the display.
Display* take(const std::string& name) {
  Display* display = XOpenDisplay(name.c_str());
  if (!display)
    throw std::runtime_error("there is no display " + name);
  const auto lease = XInternAtom(display, selection, False);
  XGrabServer(display); // nobody comes between the question and the answer
  const bool isFree = XGetSelectionOwner(display, lease) == None;
  if (isFree)
    XSetSelectionOwner(display, lease,
                       XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0),
                       CurrentTime);
  XUngrabServer(display);
  XSync(display, False);
  if (!isFree)
    XCloseDisplay(display);
  return isFree ? display : nullptr;
}

Display* takeAny(const std::vector<std::string>& names) {
  for (const auto& name : names)
    if (auto* display = take(name))
      return display;
  return nullptr;
}

} // namespace

DisplayLease::DisplayLease() {
  constexpr std::chrono::minutes longestSuite{10};
  const auto names = displays();
  if (names.empty())
    throw std::runtime_error("there is no display; ./dev test starts virtual ones");
  if (!eventually([&] { return connection_ = takeAny(names); }, testing::NotNull(), longestSuite))
    throw std::runtime_error("no display became free");
  ::setenv("DISPLAY", DisplayString(connection_), true);
}

DisplayLease::~DisplayLease() {
  XCloseDisplay(connection_);
}

} // namespace quorvel::tests
