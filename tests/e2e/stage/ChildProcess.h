#pragma once

#include <map>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace quorvel::e2e {

using Arguments = std::vector<std::string>;
/// Variables for a child on top of ours; an absent value takes the variable away.
using Environment = std::map<std::string, std::optional<std::string>>;

/// A program that was started for a test and ends, with all that it has started, before the next test at the
/// latest.
class ChildProcess {
 public:
  /// What the program prints goes to the file `output`, if there is one. Throws std::runtime_error when the
  /// program cannot be started.
  ChildProcess(const Arguments& command, const Environment& environment, const std::string& output = {});
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  pid_t id() const { return id_; }
  /// The exit status once it has ended, 128 and the signal's number if a signal ended it.
  std::optional<int> status();
  /// Waits for the end, for as long as the patience lasts.
  std::optional<int> waitForEnd();
  void signal(int number) const;

 private:
  /// Whether anything runs of what it started and left behind; what has ended is forgotten.
  bool hasOffspring(int options) const;

  pid_t id_ = -1;
  std::optional<int> status_;
};

/// A file's text; "" where there is none, or none any more: what is said of a process goes with it.
std::string textOf(const std::string& path);

/// The running processes below `ancestor` whose name, as far as the system keeps it (15 letters), is `name`.
std::vector<pid_t> descendants(pid_t ancestor, const std::string& name);

/// Kills the processes below `ancestor` of this name, and waits until they are gone: until then whoever talks
/// to one may not have heard of its end, and ask it for something.
void killDescendants(pid_t ancestor, const std::string& name);

/// What a process that `program` started lacks of a sandbox of its own: "a user namespace" and so on. Empty
/// where it lacks nothing, or has ended.
std::vector<std::string> lacksOfSandbox(pid_t process, pid_t program);

/// Runs a command to its end and returns what it printed to its standard output, without the last line break.
std::string outputOf(const Arguments& command, const Environment& environment = {});

} // namespace quorvel::e2e
