#include "e2e/stage/Client.h"

#include "e2e/stage/Stage.h"
#include "support/eventually.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <algorithm>
#include <sstream>

namespace quorvel::e2e {

using tests::eventually;

namespace {

std::string outputFile() {
  return std::string(std::getenv(Stage::variable)) + "/client.log";
}

Arguments commandOf(const Arguments& through) {
  Arguments command = through;
  command.push_back(QUORVEL_CLIENT);
  return command;
}

bool isWindow(const Accessible& object) {
  return object.role() == ATSPI_ROLE_FRAME || object.role() == ATSPI_ROLE_WINDOW ||
         object.role() == ATSPI_ROLE_DIALOG;
}

bool isHighlighted(const Accessible& object) {
  return object.is(ATSPI_STATE_SELECTED) || object.is(ATSPI_STATE_PRESSED) || object.is(ATSPI_STATE_CHECKED);
}

} // namespace

Client::Client(const Environment& environment, const Arguments& through)
    : process_(commandOf(through), environment, outputFile()) {}

std::vector<Accessible> Client::windows() const {
  std::vector<Accessible> found;
  if (const auto application = Accessible::ofProcess(process_.id()))
    std::ranges::copy_if(application->children(), std::back_inserter(found), isWindow);
  return found;
}

std::optional<Accessible> Client::window(const std::string& title) const {
  for (const auto& window : windows())
    if (window.name() == title)
      return window;
  return std::nullopt;
}

void Client::lookAround() const {
  const auto main = window();
  buttons_.clear();
  for (const auto& object : main ? main->all() : std::vector<Accessible>()) {
    const auto name = object.name();
    if (object.role() == ATSPI_ROLE_LABEL) {
      if (name.find("://") != std::string::npos)
        address_ = object;
      continue;
    }
    controls_.insert_or_assign(name, object);
    if (object.role() == ATSPI_ROLE_PUSH_BUTTON)
      buttons_.push_back(object);
    if (name == "Page")
      if (const auto view = object.parent())
        pageArea_ = view->parent();
  }
}

std::optional<Accessible> Client::control(const std::string& name) const {
  if (!controls_.contains(name))
    lookAround();
  const auto found = controls_.find(name);
  return found == controls_.end() ? std::nullopt : std::optional(found->second);
}

void Client::press(const std::string& name) const {
  EXPECT_TRUE(eventually([&] {
    const auto pressed = control(name);
    return pressed && pressed->is(ATSPI_STATE_SENSITIVE) && pressed->activate();
  })) << "\""
      << name << "\" cannot be pressed";
}

bool Client::isEnabled(const std::string& name) const {
  const auto found = control(name);
  return found && found->is(ATSPI_STATE_SENSITIVE);
}

std::string Client::address() const {
  if (!address_)
    lookAround();
  return address_ ? address_->name() : "";
}

std::vector<std::string> Client::highlighted() const {
  if (buttons_.empty())
    lookAround();
  std::vector<std::string> names;
  for (const auto& button : buttons_)
    if (isHighlighted(button))
      names.push_back(button.name());
  return names;
}

bool Client::spins() const {
  if (!pageArea_)
    lookAround();
  return pageArea_ && std::ranges::any_of(pageArea_->children(),
                                          [](const auto& layer) { return layer.name() == "Loading"; });
}

std::string Client::focused() const {
  if (controls_.empty())
    lookAround();
  const auto found =
      std::ranges::find_if(controls_, [](const auto& each) { return each.second.is(ATSPI_STATE_FOCUSED); });
  return found == controls_.end() ? "" : found->first;
}

std::vector<std::string> Client::namesIn(const std::string& title, AtspiRole role) const {
  std::vector<std::string> names;
  const auto found = window(title);
  for (const auto& object : found ? found->all() : std::vector<Accessible>())
    if (object.role() == role)
      names.push_back(object.name());
  return names;
}

std::optional<Accessible> Client::switchIn(const std::string& title, const std::string& name) const {
  const auto found = window(title);
  for (const auto& object : found ? found->all() : std::vector<Accessible>())
    if (object.role() != ATSPI_ROLE_LABEL && object.name() == name)
      return object;
  return std::nullopt;
}

void Client::toggle(const std::string& title, const std::string& name) const {
  const auto found = switchIn(title, name);
  EXPECT_TRUE(found && found->activate()) << "there is no switch \"" << name << "\"";
}

bool Client::isOn(const std::string& title, const std::string& name) const {
  const auto found = switchIn(title, name);
  return found && (found->is(ATSPI_STATE_CHECKED) || found->is(ATSPI_STATE_PRESSED));
}

std::string Client::xWindow() const {
  std::string id;
  EXPECT_TRUE(eventually([&] {
    id = outputOf({"xdotool", "search", "--onlyvisible", "--pid", std::to_string(process_.id()), "--name",
                   "^Quorvel$"});
    return !id.empty();
  }));
  return id.substr(0, id.find('\n'));
}

std::string Client::windowWithKeys() const {
  return outputOf({"xdotool", "getwindowfocus", "getwindowname"});
}

void Client::type(const std::string& keys) const {
  outputOf({"xdotool", "key", "--clearmodifiers", keys});
}

void Client::write(const std::string& text) const {
  outputOf({"xdotool", "type", text});
}

void Client::clickPage() const {
  const auto id = xWindow();
  outputOf({"xdotool", "mousemove", "--window", id, "740", "480", "click", "1"});
}

Size Client::size() const {
  Size size;
  std::istringstream geometry(outputOf({"xdotool", "getwindowgeometry", "--shell", xWindow()}));
  for (std::string line; std::getline(geometry, line);) {
    if (line.starts_with("WIDTH="))
      size.width = std::stoi(line.substr(6));
    if (line.starts_with("HEIGHT="))
      size.height = std::stoi(line.substr(7));
  }
  return size;
}

void Client::resize(Size size) const {
  outputOf({"xdotool", "windowsize", xWindow(), std::to_string(size.width), std::to_string(size.height)});
}

Size Client::minimumSize() const {
  const std::unique_ptr<Display, int (*)(Display*)> display(XOpenDisplay(nullptr), XCloseDisplay);
  XSizeHints hints{};
  long supplied = 0;
  XGetWMNormalHints(display.get(), std::stoul(xWindow()), &hints, &supplied);
  return {hints.min_width, hints.min_height};
}

void Client::killWebProcess() const {
  killDescendants(process_.id(), "WebKitWebProces");
}

std::string Client::said() const {
  return textOf(outputFile());
}

} // namespace quorvel::e2e
