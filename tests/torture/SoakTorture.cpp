#include "e2e/stage/ClientTest.h"
#include "torture/torture.h"

#include <fstream>
#include <numeric>

namespace quorvel::e2e {
namespace {

using namespace std::chrono_literals;

constexpr int step = 25; // navigations from one look at the memory to the next

/// What a process holds in memory, in MiB.
double memoryOf(pid_t process) {
  double whole = 0, resident = 0; // in pages
  std::ifstream("/proc/" + std::to_string(process) + "/statm") >> whole >> resident;
  return resident * 4096 / (1024 * 1024);
}

/// The memory after each `step` navigations.
using Course = std::vector<double>;

double growth(const Course& course) {
  return *std::ranges::max_element(course) - course.front();
}

/// How much the second half grows, in MiB for 1,000 navigations, by the line that fits it best.
double slopeOfSecondHalf(const Course& course) {
  const Course half(course.begin() + static_cast<std::ptrdiff_t>(course.size() / 2), course.end());
  const auto count = static_cast<double>(half.size());
  const double middle = (count - 1) / 2, mean = std::reduce(half.begin(), half.end()) / count;
  double covariance = 0, variance = 0;
  for (std::size_t i = 0; i < half.size(); ++i) {
    const double offset = static_cast<double>(i) - middle;
    covariance += offset * (half[i] - mean);
    variance += offset * offset;
  }
  return covariance / variance / step * 1'000;
}

class SoakTorture : public ClientTest {
 protected:
  SoakTorture() {
    // A page that goes on to itself, as "?name:1", "?name:2" and so on, and reports each step.
    stage.servePage("wander.html", "<script>const [name, at] = location.search.slice(1).split(':');"
                                   "const goOn = () => { if (at < " +
                                       std::to_string(navigations) +
                                       ") location.href = `?${name}:${Number(at) + 1}`; };"
                                       "addEventListener('load', () => setTimeout(() => at % " +
                                       std::to_string(step) +
                                       " ? goOn() : report(name + '=' + at).then(goOn)));</script>"
                                       "<body style='background: linear-gradient(red, blue)'>");
  }

  /// Watches a program whose page wanders under this name, for as long as it does.
  Course courseOf(pid_t program, const std::string& name) {
    Course course;
    for (int at = 0; at <= navigations; at += step) {
      const auto report = "/report?" + name + "=" + std::to_string(at);
      // Each step is as many loads.
      if (!eventually([&] { return stage.requests().count(report) > 0; }, Eq(true), 60s)) {
        figure(name, ": the page has stopped before ", at, " navigations");
        return course;
      }
      course.push_back(memoryOf(program));
    }
    figure(name, ": ", course.front(), " MiB at first, ", growth(course), " more after ", navigations,
           " navigations, ", slopeOfSecondHalf(course), " for 1,000 of the second half");
    return course;
  }

  const int navigations = rounds(2'000);
};

TEST_F(SoakTorture, ThousandsOfNavigationsCostTheWindowNextToNoMemory) {
  stage.servePage("agent.html",
                  "<script>setTimeout(() => { location.href = '/wander.html?client:0' })</script>");
  launch();
  const auto course = courseOf(client().process().id(), "client");
  ASSERT_THAT(course, SizeIs(navigations / step + 1));
  quit();
  // For comparison only: its network process may end under such a page.
  const ChildProcess bareWindow({QUORVEL_BARE_VIEW, "/wander.html?bare-window:0"}, {});
  courseOf(bareWindow.id(), "bare-window");

  EXPECT_LE(growth(course), 60);
  if (isWhole()) { // A short course is mostly warming up.
    EXPECT_LE(slopeOfSecondHalf(course), 1);
  }
}

} // namespace
} // namespace quorvel::e2e
