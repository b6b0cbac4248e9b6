#include "e2e/stage/Stage.h"

#include "e2e/stage/ChildProcess.h"

#include <cstdlib>
#include <fstream>

namespace quorvel::e2e {

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

constexpr auto reportWhenShown = "const report = text => fetch('/report?' + text);"
                                 "addEventListener('pageshow', () => report('shown=' + location.pathname));";

} // namespace

Stage::Stage() : folder_(std::getenv(variable)), requests_(folder_ / "requests.log") {
  clear();
  for (const auto* page : {"agent.html", "pricing.html", "support.html"})
    servePage(page, page);
  prepareAccount();
  registerHandler();
  outputOf({"xdotool", "mousemove", "900", "600"});
}

// The service goes on writing its log, and the bus has its sockets: they stay where they are.
void Stage::clear() const {
  std::ofstream(folder_ / "requests.log") << "";
  for (const auto* each : {"pages", "tmp", "handed", "client.log"})
    fs::remove_all(folder_ / each);
  for (const auto* folder : {"pages", "tmp"})
    fs::create_directory(folder_ / folder);
}

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
  ::setenv("TMPDIR", (folder_ / "tmp").c_str(), 1);
  for (const auto& name :
       {"WAYLAND_DISPLAY", "GDK_DEBUG", "GDK_DISABLE", "GSK_RENDERER", "AT_SPI_BUS_ADDRESS", "GTK_A11Y"})
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
