// What the console costs: how long an action takes until it has been drawn, on the sample workspace and on a
// large one, and how much memory a large one takes.
//
//   console-frames
//
// An action is measured from its call to the end of the frame that shows it. "work" is the processor time of
// that, on this thread: what is left when the waiting for the frame clock is taken away.

#include "percentile.h"

#include "brand/StyleSheet.h"
#include "preferences/Preferences.h"
#include "programs/console/ConsoleColumns.h"
#include "workspace/WorkspaceStore.h"

#include <chrono>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <functional>
#include <gtkmm.h>
#include <string>
#include <vector>

namespace {

using namespace quorvel;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int rounds = 200, roundsOfSections = 25;

/// A time of one action, in milliseconds.
struct Cost {
  double work, frame;
};

void print(const char* workspace, const std::string& action, const std::vector<Cost>& costs) {
  std::vector<double> work, frame;
  for (const auto& cost : costs) {
    work.push_back(cost.work);
    frame.push_back(cost.frame);
  }
  std::printf("%-7s %-22s %5zu %9.1f %7.1f %7.1f %9.1f %7.1f\n", workspace, action.c_str(), costs.size(),
              percentile(work, 0.5), percentile(work, 0.95), percentile(work, 1), percentile(frame, 0.5),
              percentile(frame, 0.95));
}

/// Memory that is this process's alone, in MiB.
double privateMemory() {
  double sum = 0;
  std::ifstream map("/proc/self/smaps_rollup");
  for (std::string word; map >> word;)
    if (word.starts_with("Private_")) {
      double kibibytes = 0;
      map >> kibibytes;
      sum += kibibytes;
    }
  return sum / 1024;
}

double processorTime() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

template <class Records>
void multiply(Published<Records>& records, std::size_t count) {
  const Records sample = *records;
  records.update([&](Records& all) {
    while (all.size() < count) {
      auto copy = sample[all.size() % sample.size()];
      copy.id.append(1, '-').append(std::to_string(all.size()));
      all.push_back(std::move(copy));
    }
  });
}

/// The console in a window of its usual size.
class Console {
 public:
  explicit Console(WorkspaceStore& store) : store_(store) {
    window_.set_child(*Gtk::make_managed<ConsoleColumns>(store, preferences_));
    window_.set_default_size(1560, 960);
    window_.present();
    untilDrawn();
    untilDrawn();
  }

  /// Runs the main loop until a frame that begins now has been drawn.
  void untilDrawn() {
    bool isDrawn = false;
    auto* clock = gtk_widget_get_frame_clock(GTK_WIDGET(window_.gobj()));
    while (!clock) {
      Glib::MainContext::get_default()->iteration(true);
      clock = gtk_widget_get_frame_clock(GTK_WIDGET(window_.gobj()));
    }
    const auto onDrawn = +[](GdkFrameClock*, bool* drawn) { *drawn = true; };
    const auto handler = g_signal_connect(clock, "after-paint", G_CALLBACK(onDrawn), &isDrawn);
    gdk_frame_clock_request_phase(clock, GDK_FRAME_CLOCK_PHASE_PAINT);
    while (!isDrawn)
      Glib::MainContext::get_default()->iteration(true);
    g_signal_handler_disconnect(clock, handler);
  }

  Cost measure(const std::function<void()>& action) {
    const auto begin = std::chrono::steady_clock::now();
    const double before = processorTime();
    action();
    untilDrawn();
    const Cost cost{processorTime() - before, Milliseconds(std::chrono::steady_clock::now() - begin).count()};
    untilDrawn(); // what the frame brought about, such as more rows, is not the next action's
    return cost;
  }

  std::vector<Cost> measure(int times, const std::function<void(int)>& action) {
    std::vector<Cost> costs;
    for (int i = 0; i < times; ++i)
      costs.push_back(measure([&] { action(i); }));
    return costs;
  }

  void show(WorkspaceSection section) {
    store_.selectedSection = section;
    untilDrawn();
    untilDrawn();
  }

  /// How far the centre column is scrolled.
  Glib::RefPtr<Gtk::Adjustment> scroll() { return centre(window_)->get_vadjustment(); }

 private:
  /// The scrolled area with the longest content.
  static Gtk::ScrolledWindow* centre(Gtk::Widget& root) {
    auto* found = dynamic_cast<Gtk::ScrolledWindow*>(&root);
    for (auto* child = root.get_first_child(); child; child = child->get_next_sibling())
      if (auto* other = centre(*child);
          other && (!found || other->get_vadjustment()->get_upper() > found->get_vadjustment()->get_upper()))
        found = other;
    return found;
  }

  WorkspaceStore& store_;
  Preferences preferences_;
  Gtk::Window window_;
};

void measureSections(const char* name, Console& console, WorkspaceStore& store) {
  for (const auto section : allCases<WorkspaceSection>()) {
    const auto elsewhere =
        section == WorkspaceSection::browser ? WorkspaceSection::pricing : WorkspaceSection::browser;
    std::vector<Cost> costs;
    for (int i = 0; i < roundsOfSections; ++i) {
      console.show(elsewhere);
      costs.push_back(console.measure([&] { store.selectedSection = section; }));
    }
    print(name, "open " + std::string(rawValue(section)), costs);
  }
}

void measureActions(const char* name, Console& console, WorkspaceStore& store) {
  const auto at = [](const auto& list, int i) { return list[static_cast<std::size_t>(i) % list.size()]; };
  console.show(WorkspaceSection::requests);
  print(name, "create", console.measure(rounds, [&](int) { store.createRequest(); }));
  console.show(WorkspaceSection::approvals);
  print(name, "approve and pause", console.measure(rounds, [&](int i) {
    const auto item = at(*store.approvals, i);
    i % 2 ? store.pause(item) : store.approve(item);
  }));
  console.show(WorkspaceSection::connectors);
  print(name, "toggle",
        console.measure(rounds, [&](int i) { store.toggleConnector(at(*store.connectors, i)); }));
  console.show(WorkspaceSection::requests);
  const auto scroll = console.scroll();
  print(name, "scroll", console.measure(rounds, [&](int) { scroll->set_value(scroll->get_value() + 120); }));
  print(name, "jump",
        console.measure(rounds, [&](int i) { scroll->set_value(i % 2 ? 0 : scroll->get_upper()); }));
}

double measure(const char* name, WorkspaceStore& store) {
  Console console(store);
  measureSections(name, console, store);
  measureActions(name, console, store);
  return privateMemory();
}

void measureStore() {
  constexpr int count = 1'000'000;
  WorkspaceStore store;
  const double memory = privateMemory(), before = processorTime();
  for (int i = 0; i < count; ++i)
    store.createRequest();
  std::printf("\na million createRequest(): %.2f µs and %.0f bytes each\n",
              (processorTime() - before) * 1e3 / count, (privateMemory() - memory) * 1024 * 1024 / count);
}

} // namespace

int main() {
  if (!gtk_init_check()) {
    std::fputs("console-frames: there is no display.\n", stderr);
    return 1;
  }
  setvbuf(stdout, nullptr, _IOLBF, 0);
  const auto application = Gtk::Application::create("", Gio::Application::Flags::NON_UNIQUE);
  installStyle();

  std::puts("                                         work until drawn, ms         frame drawn, ms");
  std::puts("records action                 times    median     95 %     max    median     95 %");
  WorkspaceStore sample, large;
  multiply(large.requests, 10'000);
  multiply(large.activity, 10'000);
  multiply(large.agents, 1'000);
  multiply(large.approvals, 1'000);
  multiply(large.connectors, 1'000);
  multiply(large.plans, 1'000);
  const double memory = measure("sample", sample);
  const double memoryOfLarge = measure("large", large);
  std::printf("\nmemory with the large workspace: %.1f MiB more than with the sample's %.1f\n",
              memoryOfLarge - memory, memory);
  measureStore();
}
