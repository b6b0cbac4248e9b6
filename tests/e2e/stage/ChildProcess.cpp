#include "e2e/stage/ChildProcess.h"

#include "support/TemporaryFolder.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <glib.h>
#include <sstream>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvel::e2e {

using tests::eventually;

namespace {

std::vector<char*> pointers(const Arguments& command) {
  std::vector<char*> result;
  for (const auto& argument : command)
    result.push_back(const_cast<char*>(argument.c_str()));
  result.push_back(nullptr);
  return result;
}

void apply(const Environment& environment) {
  for (const auto& [name, value] : environment)
    value ? ::setenv(name.c_str(), value->c_str(), 1) : ::unsetenv(name.c_str());
}

void printInto(const std::string& file) {
  const int output = ::open(file.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
  ::dup2(output, STDOUT_FILENO);
  ::dup2(output, STDERR_FILENO);
}

struct ProcessStatus {
  std::string name;
  char state = 'X';
  pid_t parent = 0;
};

ProcessStatus statusOf(pid_t id) {
  const auto text = textOf("/proc/" + std::to_string(id) + "/stat");
  const auto nameEnd = text.rfind(')');
  if (nameEnd == std::string::npos)
    return {};
  ProcessStatus status{text.substr(0, nameEnd)};
  status.name.erase(0, status.name.find('(') + 1);
  std::istringstream(text.substr(nameEnd + 1)) >> status.state >> status.parent;
  return status;
}

bool descendsFrom(pid_t id, pid_t ancestor) {
  for (; id > 1; id = statusOf(id).parent)
    if (id == ancestor)
      return true;
  return false;
}

int statusFrom(int waited) {
  return WIFEXITED(waited) ? WEXITSTATUS(waited) : 128 + WTERMSIG(waited);
}

} // namespace

ChildProcess::ChildProcess(const Arguments& command, const Environment& environment,
                           const std::string& output) {
  ::prctl(PR_SET_CHILD_SUBREAPER, 1); // what it leaves behind is ours to wait for
  id_ = ::fork();
  if (id_ < 0)
    throw std::runtime_error("cannot start " + command.front());
  if (id_ > 0) {
    ::setpgid(id_, id_);
    return;
  }
  ::setpgid(0, 0);
  ::prctl(PR_SET_PDEATHSIG, SIGTERM);
  apply(environment);
  if (!output.empty())
    printInto(output);
  ::execvp(command.front().c_str(), pointers(command).data());
  ::_exit(127);
}

ChildProcess::~ChildProcess() {
  signal(SIGTERM);
  if (eventually([this] { return status() && !hasOffspring(WNOHANG); }))
    return;
  ::kill(-id_, SIGKILL);
  hasOffspring(0);
}

bool ChildProcess::hasOffspring(int options) const {
  pid_t ended;
  do
    ended = ::waitpid(-id_, nullptr, options);
  while (ended > 0);
  return ended == 0;
}

std::optional<int> ChildProcess::status() {
  int waited = 0;
  if (!status_ && ::waitpid(id_, &waited, WNOHANG) == id_)
    status_ = statusFrom(waited);
  return status_;
}

std::optional<int> ChildProcess::waitForEnd() {
  static_cast<void>(eventually([this] { return status().has_value(); }));
  return status_;
}

void ChildProcess::signal(int number) const {
  if (!status_)
    ::kill(id_, number);
}

std::string textOf(const std::string& path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

std::vector<pid_t> descendants(pid_t ancestor, const std::string& name) {
  std::vector<pid_t> found;
  for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
    const pid_t id = std::atoi(entry.path().filename().c_str());
    const auto status = id > 0 ? statusOf(id) : ProcessStatus{};
    if (status.name == name && status.state != 'Z' && descendsFrom(id, ancestor))
      found.push_back(id);
  }
  return found;
}

void killDescendants(pid_t ancestor, const std::string& name) {
  const auto killed = descendants(ancestor, name);
  for (const auto each : killed)
    ::kill(each, SIGKILL);
  const auto isThere = [](pid_t id) { return std::filesystem::exists("/proc/" + std::to_string(id)); };
  EXPECT_TRUE(eventually([&] { return std::ranges::none_of(killed, isThere); })) << name << " does not end";
}

std::vector<std::string> lacksOfSandbox(pid_t process, pid_t program) {
  const auto space = [](pid_t id, const char* kind) {
    std::error_code hasEnded;
    return std::filesystem::read_symlink("/proc/" + std::to_string(id) + "/ns/" + kind, hasEnded);
  };
  std::vector<std::string> lacks;
  for (const auto& [kind, name] :
       {std::pair{"user", "a user namespace"}, {"mnt", "a mount namespace"}, {"pid", "a process namespace"}})
    if (const auto own = space(process, kind); own.empty() || own == space(program, kind))
      lacks.emplace_back(name);
  if (textOf("/proc/" + std::to_string(process) + "/status").find("\nSeccomp:\t2\n") == std::string::npos)
    lacks.emplace_back("a filter of system calls");
  const bool hasEnded = std::string("XZ").find(statusOf(process).state) != std::string::npos;
  return hasEnded ? std::vector<std::string>() : lacks;
}

std::string outputOf(const Arguments& command, const Environment& environment) {
  const tests::TemporaryFolder folder;
  const auto file = folder.path / "output";
  ChildProcess(command, environment, file).waitForEnd();
  auto result = textOf(file);
  if (result.ends_with('\n'))
    result.pop_back();
  return result;
}

} // namespace quorvel::e2e
