#pragma once

#include <optional>
#include <string>

namespace quorvel {

/// The first of the addresses, which semicolons divide, at which a message bus answers that the web engine
/// can be told of. Nothing where there is none.
///
/// The engine (WebKitGTK 2.50) shares the folder of the bus's socket with the helper that stands
/// between its sandbox and the bus. Where that folder is missing it ends the program; where it is the root
/// folder the helper leaves "/.flatpak-info" behind there, by which the engine then takes every program of
/// the machine for one that is confined already.
std::optional<std::string> usableBusAddress(const std::string& addresses);

/// Has the environment name no bus that is not usable. To be called before the toolkit starts and before
/// there is a second thread.
void keepUsableBuses();

} // namespace quorvel
