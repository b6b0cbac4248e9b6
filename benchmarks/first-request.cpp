// How long a program takes from its start to its first request, beside another one, turn by turn.
//
//   first_request LOG RUNS COMMAND OTHER_COMMAND
//
// LOG is the stand-in service's request log; the commands are words without spaces inside, separated by
// spaces. Each command runs once uncounted, then RUNS times, A B A B, so that a machine of changing speed
// treats both alike.

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock; // the clock of the log's time stamps
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr auto patience = std::chrono::seconds(20);

std::vector<std::string> linesOf(const std::string& file) {
  std::vector<std::string> lines;
  std::ifstream stream(file);
  for (std::string line; std::getline(stream, line);)
    lines.push_back(line);
  return lines;
}

pid_t start(const std::string& command) {
  const pid_t process = fork();
  if (process != 0)
    return process;
  setpgid(0, 0);
  std::istringstream words(command);
  std::vector<std::string> arguments;
  for (std::string word; words >> word;)
    arguments.push_back(word);
  std::vector<char*> argv;
  for (auto& argument : arguments)
    argv.push_back(argument.data());
  argv.push_back(nullptr);
  execvp(argv[0], argv.data());
  _exit(127);
}

void stop(pid_t process) {
  kill(-process, SIGTERM);
  waitpid(process, nullptr, 0);
}

/// From the start of the program to the time stamp of the first line that the log gains.
double timeToFirstRequest(const std::string& log, const std::string& command) {
  const auto before = linesOf(log).size();
  const auto begin = Clock::now();
  const pid_t process = start(command);
  auto lines = linesOf(log);
  while (lines.size() <= before && Clock::now() - begin < patience) {
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
    lines = linesOf(log);
  }
  stop(process);
  if (lines.size() <= before)
    throw std::runtime_error("no request came from: " + command);
  const Clock::time_point arrived{std::chrono::microseconds(std::stoll(lines[before]))};
  return Milliseconds(arrived - begin).count();
}

void report(const std::string& name, std::vector<double> times) {
  std::ranges::sort(times);
  std::cout << name << ": " << times.front() << " / " << times[times.size() / 2] << " / " << times.back()
            << " ms (least / median / most of " << times.size() << ")\n";
}

} // namespace

int main(int argc, char** argv) try {
  if (argc != 5) {
    std::cerr << "usage: first_request LOG RUNS COMMAND OTHER_COMMAND\n";
    return 2;
  }
  const std::string log = argv[1], commands[] = {argv[3], argv[4]};
  const int runs = std::stoi(argv[2]);
  std::vector<double> times[2], ratios;
  for (int run = 0; run <= runs; ++run) {
    const double first = timeToFirstRequest(log, commands[0]), second = timeToFirstRequest(log, commands[1]);
    if (run == 0)
      continue;
    times[0].push_back(first);
    times[1].push_back(second);
    ratios.push_back(first / second);
  }
  report(commands[0], times[0]);
  report(commands[1], times[1]);
  std::ranges::sort(ratios);
  std::cout << "ratio, run by run: " << ratios[ratios.size() / 2] << " (median)\n";
} catch (const std::exception& error) {
  std::cerr << "first_request: " << error.what() << '\n';
  return 1;
}
