#pragma once

namespace quorvel {

/// How a program is known: to the desktop by its application id, to people by its name, and to a shell by its
/// command; and in a few words what it is.
struct ProgramName {
  const char* identifier;
  const char* name;
  const char* command;
  const char* summary;
};

} // namespace quorvel
