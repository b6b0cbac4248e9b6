#include "engine/SystemProcess.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <unistd.h>

namespace quorvel {
namespace {

namespace fs = std::filesystem;

std::map<std::string, std::string> readStatus(const fs::path& file) {
  std::map<std::string, std::string> status;
  std::ifstream lines(file);
  for (std::string line; std::getline(lines, line);)
    if (const auto colon = line.find(":\t"); colon != std::string::npos)
      status.emplace(line.substr(0, colon), line.substr(colon + 2));
  return status;
}

} // namespace

SystemProcess::SystemProcess(pid_t id) : id_(id) {
  const auto folder = fs::path("/proc") / std::to_string(id);
  std::error_code isNotForUs;
  status_ = readStatus(folder / "status");
  mountNamespace_ = fs::read_symlink(folder / "ns/mnt", isNotForUs).string();
}

SystemProcess SystemProcess::ourselves() {
  return SystemProcess(::getpid());
}

std::vector<SystemProcess> SystemProcess::descendants(const std::string& name) const {
  static constexpr std::size_t lettersKept = 15;
  std::vector<SystemProcess> found;
  std::error_code noProcesses;
  for (const auto& entry : fs::directory_iterator("/proc", noProcesses))
    if (const pid_t id = std::atoi(entry.path().filename().c_str()); id > 0)
      if (const SystemProcess process(id); process.exists() &&
                                           process.value("Name") == name.substr(0, lettersKept) &&
                                           process.descendsFrom(id_))
        found.push_back(process);
  return found;
}

bool SystemProcess::exists() const {
  return !status_.empty() && !value("State").starts_with('Z');
}

bool SystemProcess::isStopped() const {
  return value("State").starts_with('T');
}

std::chrono::nanoseconds SystemProcess::timeAtWork() const {
  std::ifstream counts(fs::path("/proc") / std::to_string(id_) / "schedstat");
  std::chrono::nanoseconds::rep hasRun = 0, hasWaited = 0;
  counts >> hasRun >> hasWaited;
  return std::chrono::nanoseconds(hasRun + hasWaited);
}

std::ptrdiff_t SystemProcess::processNamespaces() const {
  std::istringstream numbers(value("NSpid"));
  return std::distance(std::istream_iterator<pid_t>(numbers), {});
}

std::string SystemProcess::value(const char* name) const {
  const auto found = status_.find(name);
  return found == status_.end() ? "" : found->second;
}

pid_t SystemProcess::parent() const {
  return std::atoi(value("PPid").c_str());
}

bool SystemProcess::descendsFrom(pid_t ancestor) const {
  for (pid_t each = parent(); each > 0; each = SystemProcess(each).parent())
    if (each == ancestor)
      return true;
  return false;
}

} // namespace quorvel
