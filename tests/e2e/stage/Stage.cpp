#include "e2e/stage/Stage.h"

#include "support/eventually.h"

#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace quorvel::e2e {

using tests::eventually;

namespace {

namespace fs = std::filesystem;

void write(const fs::path& file, const std::string& text) {
  fs::create_directories(file.parent_path());
  std::ofstream(file) << text;
}

std::vector<std::string> linesOf(const fs::path& file) {
  std::vector<std::string> lines;
  std::ifstream stream(file);
  for (std::string line; std::getline(stream, line);)
    lines.push_back(line);
  return lines;
}

/// Starts a program whose first words on descriptor 3 say where it can be reached.
std::pair<std::unique_ptr<ChildProcess>, std::string> startServer(const Arguments& command,
                                                                  const fs::path& output) {
  Arguments quietly = {"sh", "-c", "exec \"$0\" \"$@\" 3>&1 >/dev/null 2>&1"};
  quietly.insert(quietly.end(), command.begin(), command.end());
  auto server = std::make_unique<ChildProcess>(quietly, Environment{}, output);
  if (!eventually([&] { return !linesOf(output).empty(); }))
    throw std::runtime_error(command.front() + " did not start");
  return {std::move(server), linesOf(output).front()};
}

constexpr auto reportWhenShown = "const report = text => fetch('/report?' + text);"
                                 "addEventListener('pageshow', () => report('shown=' + location.pathname));";

} // namespace

bool Stage::isSet() {
  return std::getenv(variable);
}

fs::path Stage::makeFolder() {
  std::string name = (fs::temp_directory_path() / "quorvel-stage-XXXXXX").string();
  if (!::mkdtemp(name.data()))
    throw std::runtime_error("cannot make a folder for the test's files");
  for (const auto* folder : {"pages", "tmp"})
    fs::create_directory(fs::path(name) / folder);
  return name;
}

Stage::Stage() : folder_(std::getenv(variable)), requests_(folder_ / "requests.log") {
  for (const auto* page : {"agent.html", "pricing.html", "support.html"})
    servePage(page, page);
  prepareAccount();
  registerHandler();
  startDisplay();
  startBus();
}

Stage::~Stage() = default;

void Stage::prepareAccount() {
  for (const auto& [name, folder] : {std::pair{"HOME", "home"},
                                     {"XDG_CONFIG_HOME", "config"},
                                     {"XDG_DATA_HOME", "data"},
                                     {"XDG_CACHE_HOME", "cache"},
                                     {"XDG_STATE_HOME", "state"},
                                     {"XDG_RUNTIME_DIR", "runtime"}}) {
    fs::remove_all(folder_ / folder);
    fs::create_directory(folder_ / folder);
    fs::permissions(folder_ / folder, fs::perms::owner_all);
    ::setenv(name, (folder_ / folder).c_str(), 1);
  }
  for (const auto& name : {"WAYLAND_DISPLAY", "GDK_DEBUG", "GSK_RENDERER", "AT_SPI_BUS_ADDRESS", "GTK_A11Y"})
    ::unsetenv(name);
  ::setenv("LC_ALL", "C.UTF-8", 1);
}

void Stage::registerHandler() const {
  write(folder_ / "handler", "#!/bin/sh\nprintf '%s\\n' \"$1\" >>'" + (folder_ / "handed").string() + "'\n");
  fs::permissions(folder_ / "handler", fs::perms::owner_all);
  write(data() / "applications/handler.desktop",
        "[Desktop Entry]\nType=Application\nName=Handler\nExec=" + (folder_ / "handler").string() + " %u\n");
  write(config() / "mimeapps.list", "[Default Applications]\n"
                                    "x-scheme-handler/mailto=handler.desktop\n"
                                    "x-scheme-handler/tel=handler.desktop\n"
                                    "x-scheme-handler/http=handler.desktop\n"
                                    "x-scheme-handler/https=handler.desktop\n");
}

// Without -noreset the server starts afresh when its last client leaves, and drops whoever is just arriving.
void Stage::startDisplay() {
  auto [server, number] =
      startServer({"Xvfb", "-displayfd", "3", "-screen", "0", "1800x1200x24", "-nolisten", "tcp", "-noreset"},
                  folder_ / "display");
  display_ = std::move(server);
  ::setenv("DISPLAY", (":" + number).c_str(), 1);
}

void Stage::startBus() {
  auto [server, address] = startServer({"dbus-daemon", "--session", "--nofork", "--print-address=3",
                                        "--address=unix:dir=" + (folder_ / "runtime").string()},
                                       folder_ / "bus");
  bus_ = std::move(server);
  ::setenv("DBUS_SESSION_BUS_ADDRESS", address.c_str(), 1);
}

void Stage::servePage(const std::string& name, const std::string& html) const {
  write(folder_ / "pages" / name, "<!doctype html><title>" + name + "</title><script>" + reportWhenShown +
                                      "</script>\n<body>" + html + "</body>\n");
}

void Stage::serveOwnPages() const {
  fs::remove_all(folder_ / "pages");
  fs::create_directory(folder_ / "pages");
}

std::vector<std::string> Stage::reports() const {
  static const std::string prefix = "/report?";
  std::vector<std::string> result;
  for (const auto& target : requests_.targets())
    if (target.starts_with(prefix))
      result.push_back(target.substr(prefix.size()));
  return result;
}

std::vector<std::string> Stage::handedToSystem() const {
  return linesOf(folder_ / "handed");
}

void Stage::removeHandler() const {
  fs::remove_all(data() / "applications");
}

void Stage::savePicture(const std::string& file) const {
  outputOf({"import", "-window", "root", file});
}

std::string Stage::fingerprint(const std::string& part) const {
  return outputOf({"import", "-window", "root", "-crop", part, "-format", "%#", "info:"});
}

} // namespace quorvel::e2e
