#include "e2e/stage/SessionBus.h"

#include "support/eventually.h"

#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace quorvel::e2e {
namespace {

namespace fs = std::filesystem;

std::string firstLine(const fs::path& file) {
  std::ifstream stream(file);
  std::string line;
  return std::getline(stream, line) && !stream.eof() ? line : "";
}

fs::path made(const fs::path& folder) {
  fs::create_directory(folder);
  fs::permissions(folder, fs::perms::owner_all);
  return folder;
}

} // namespace

// Services that knew the display would leave the bus's address on it, for programs that come after this bus.
SessionBus::SessionBus(const fs::path& folder)
    : process_({"dbus-daemon", "--session", "--nofork", "--print-address",
                "--address=unix:dir=" + made(folder).string()},
               {{"DISPLAY", std::nullopt}, {"XDG_RUNTIME_DIR", folder}}, folder / "address") {
  if (!tests::eventually([&] { return !firstLine(folder / "address").empty(); }))
    throw std::runtime_error("the session bus did not start");
  ::setenv("DBUS_SESSION_BUS_ADDRESS", firstLine(folder / "address").c_str(), true);
}

} // namespace quorvel::e2e
