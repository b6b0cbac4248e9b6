#pragma once

#include <chrono>
#include <cstddef>
#include <map>
#include <string>
#include <sys/types.h>
#include <vector>

namespace quorvel {

/// A process of this machine as the kernel told of it at one moment.
class SystemProcess {
 public:
  explicit SystemProcess(pid_t id);
  static SystemProcess ourselves();
  /// The processes below this one that run a program of this name.
  std::vector<SystemProcess> descendants(const std::string& name) const;

  pid_t id() const { return id_; }
  /// False if it had ended.
  bool exists() const;
  /// Whether somebody has stopped it, to go on later or never.
  bool isStopped() const;
  /// For how long, until now, its main thread has run or has waited for a processor: all the time that it has
  /// not rested. Nothing where the kernel does not count that.
  std::chrono::nanoseconds timeAtWork() const;
  /// Whether it can make only such system calls as a filter lets through.
  bool isFiltered() const { return value("Seccomp") == "2"; }
  /// In how many nested namespaces of processes it has a number.
  std::ptrdiff_t processNamespaces() const;
  /// What tells its namespace of mounts from others; empty where that is not for us to know.
  const std::string& mountNamespace() const { return mountNamespace_; }

 private:
  std::string value(const char* name) const;
  pid_t parent() const;
  bool descendsFrom(pid_t ancestor) const;

  pid_t id_;
  std::map<std::string, std::string> status_; // by the kernel's own names
  std::string mountNamespace_;
};

} // namespace quorvel
