#include "ServiceOptions.h"

#include <glibmm/optioncontext.h>

#include <limits>

namespace quorvel::demo {
namespace {

Glib::OptionEntry entry(const char* name, const char* description, const char* value) {
  Glib::OptionEntry entry;
  entry.set_long_name(name);
  entry.set_description(description);
  entry.set_arg_description(value);
  return entry;
}

std::uint16_t portNumber(int value) {
  if (value < 1 || value > std::numeric_limits<std::uint16_t>::max())
    throw UsageError("--port " + std::to_string(value) + " is not between 1 and 65535.");
  return static_cast<std::uint16_t>(value);
}

void requireEverythingNeeded(const ServiceOptions& options) {
  if (options.certificate.empty() || options.key.empty())
    throw UsageError("--certificate and --key are both needed: the service speaks TLS only.");
  if (options.pageFolders.empty())
    throw UsageError("--pages is needed: there is nothing to serve.");
}

} // namespace

ServiceOptions parseServiceOptions(int argc, char** argv) {
  ServiceOptions options;
  int port = options.port;
  Glib::ustring address = options.address;

  Glib::OptionGroup group("service", "The service's options");
  group.add_entry(entry("address", "Address to listen on (127.0.0.1)", "ADDRESS"), address);
  group.add_entry(entry("port", "Port to listen on (443)", "PORT"), port);
  group.add_entry_filename(entry("certificate", "The server's certificate, PEM", "FILE"),
                           options.certificate);
  group.add_entry_filename(entry("key", "The certificate's private key, PEM", "FILE"), options.key);
  group.add_entry_filename(
      entry("pages", "Folder of pages; the first one that has a page serves it", "FOLDER"),
      options.pageFolders);
  group.add_entry_filename(entry("log", "File that gets one line a request", "FILE"), options.log);

  group.add_entry(entry("host", "Print the host that it stands in for, and end", ""), options.tellsHost);

  Glib::OptionContext context("- stands in for the hosted Quorvel service");
  context.set_main_group(group);
  try {
    context.parse(argc, argv);
  } catch (const Glib::Error& error) {
    throw UsageError(error.what());
  }
  if (argc > 1)
    throw UsageError(std::string("The argument \"") + argv[1] + "\" means nothing here.");

  options.address = address;
  options.port = portNumber(port);
  if (!options.tellsHost)
    requireEverythingNeeded(options);
  return options;
}

} // namespace quorvel::demo
