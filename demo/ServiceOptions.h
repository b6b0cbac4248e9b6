#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace quorvel::demo {

/// What the command line of the stand-in service says.
struct ServiceOptions {
  std::string address = "127.0.0.1";
  std::uint16_t port = 443;
  std::string certificate;              ///< PEM file
  std::string key;                      ///< PEM file
  std::vector<std::string> pageFolders; ///< searched in this order
  std::string log;                      ///< empty: no log is kept
  bool tellsHost = false;               ///< only asked which host it stands in for; the rest may be missing
};

/// A command line that cannot be obeyed; what() is one sentence for the person who typed it.
struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Throws UsageError; Gio must have been initialised. `--help` prints the options and ends the process.
ServiceOptions parseServiceOptions(int argc, char** argv);

} // namespace quorvel::demo
