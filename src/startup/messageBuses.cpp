#include "startup/messageBuses.h"

#include <filesystem>
#include <gio/gio.h>
#include <sstream>

namespace quorvel {
namespace {

/// Where the engine finds the socket of a bus: it decodes no escapes. Empty for a bus without a file.
std::filesystem::path socketOf(const std::string& address) {
  static const std::string key = "path=";
  const auto start = address.find(key);
  if (start == std::string::npos)
    return {};
  const auto path = address.substr(start + key.size());
  return path.substr(0, path.find(','));
}

bool canBeShared(const std::filesystem::path& folder) {
  std::error_code unknown;
  return is_directory(folder, unknown) && !equivalent(folder, "/", unknown);
}

bool answers(const std::string& address) {
  GIOStream* stream = g_dbus_address_get_stream_sync(address.c_str(), nullptr, nullptr, nullptr);
  if (stream)
    g_object_unref(stream);
  return stream;
}

bool isUsable(const std::string& address) {
  // Nobody waits at the start for another machine's bus, whose address means nothing to the sandbox.
  if (!address.starts_with("unix:"))
    return !address.empty();
  const auto socket = socketOf(address);
  return (socket.empty() || canBeShared(socket.parent_path())) && answers(address);
}

} // namespace

std::optional<std::string> usableBusAddress(const std::string& addresses) {
  std::istringstream each(addresses);
  for (std::string address; std::getline(each, address, ';');)
    if (isUsable(address))
      return address;
  return std::nullopt;
}

void keepUsableBuses() {
  // Where no session bus is named the toolkit would start one; without an accessibility bus it asks the
  // session.
  static constexpr std::pair<const char*, const char*> variables[] = {
      {"DBUS_SESSION_BUS_ADDRESS", "disabled:"}, {"AT_SPI_BUS_ADDRESS", ""}};
  for (const auto& [variable, none] : variables)
    if (const char* addresses = g_getenv(variable))
      g_setenv(variable, usableBusAddress(addresses).value_or(none).c_str(), true);
}

} // namespace quorvel
