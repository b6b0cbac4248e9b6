#include "engine/NetworkWatch.h"
#include "engine/OwnersCommand.h"
#include "engine/PageBrake.h"
#include "engine/SystemProcess.h"
#include "ui/client/ModelTest.h"

#include <algorithm>
#include <csignal>
#include <optional>
#include <stdexcept>

namespace quorvel {
namespace {

using ::testing::IsEmpty;
using ::testing::Not;

constexpr auto hang = "while (true) {}";

std::string always(const std::string& script) {
  return "setInterval(() => { " + script + " }, 0)";
}

/// A page that would rather keep the owner where it is.
class HostilePageTest : public ModelTest {
 protected:
  /// Shows a page that does this a moment after it has loaded.
  void showPageThat(const std::string& does) {
    server.page("/armed", "");
    server.page("/hostile.html", "<title>Hostile</title><form id=form action=/elsewhere.html></form>"
                                 "<a id=link href=/elsewhere.html></a><script>let n = 0;"
                                 "function arm() { navigator.sendBeacon('/armed'); " +
                                     does +
                                     " } addEventListener('load', () => setTimeout(arm, 50))</script>");
    showHostilePage();
  }
  void showHostilePage() {
    const int before = server.count("/armed");
    model->load(server.address("/hostile.html"));
    ASSERT_TRUE(tests::eventually([&] { return server.count("/armed") > before; }));
    ASSERT_TRUE(tests::eventually([&] { return *model->title == "Hostile"; }));
  }
  bool isAt(const std::string& path, const std::string& title) const {
    return *model->title == title && *model->currentURLString == server.address(path);
  }
  void expectArrival(const std::string& path, const std::string& title) {
    EXPECT_TRUE(tests::eventually([&] { return spendTime(), isAt(path, title); }))
        << *model->currentURLString << ", " << *model->title;
  }
};

TEST_F(HostilePageTest, ReloadBringsAHangingPageBack) {
  showPageThat(hang);
  server.page("/hostile.html", "<title>Recovered</title>");
  model->reload();
  expectArrival("/hostile.html", "Recovered");
}

TEST_F(HostilePageTest, ReloadBringsBackAPageThatHangsWhileItLoads) {
  server.page("/hang.html", "<title>Hang</title><script>navigator.sendBeacon('/armed'); " +
                                std::string(hang) + "</script>");
  model->load(server.address("/hang.html"));
  ASSERT_TRUE(tests::eventually([&] { return server.count("/armed") > 0; }));
  server.page("/hang.html", "<title>Recovered</title>");
  model->reload();
  expectArrival("/hang.html", "Recovered");
}

TEST_F(HostilePageTest, ADestinationIsReachedFromAHangingPage) {
  showPageThat(hang);
  model->load(server.address("/pricing.html"));
  expectArrival("/pricing.html", "Pricing");
}

TEST_F(HostilePageTest, BackLeadsOutOfAHangingPageAndForwardToItAgain) {
  show("/agent.html");
  showPageThat(hang);
  model->goBack();
  expectArrival("/agent.html", "Agent");
  EXPECT_FALSE(model->canGoBack);
  server.page("/hostile.html", "<title>Recovered</title>");
  model->goForward();
  expectArrival("/hostile.html", "Recovered");
}

TEST_F(HostilePageTest, BackLeadsOutOfAPageThatHasFilledTheHistory) {
  show("/pricing.html");
  show("/agent.html");
  showPageThat("for (let i = 0; i < 300; ++i) location.hash = i");
  ASSERT_TRUE(tests::eventually([&] { return model->currentURLString->ends_with("#299"); }));
  model->goBack();
  expectArrival("/agent.html", "Agent");
  model->goBack();
  expectArrival("/pricing.html", "Pricing");
  EXPECT_FALSE(model->canGoBack);
}

TEST_F(HostilePageTest, ForwardLeadsToAPageThatHadFilledTheHistoryAndBackOutAgain) {
  show("/agent.html");
  showPageThat("for (let i = 0; i < 300; ++i) location.hash = i");
  ASSERT_TRUE(tests::eventually([&] { return model->currentURLString->ends_with("#299"); }));
  model->goBack();
  expectArrival("/agent.html", "Agent");
  model->goForward();
  expectArrival("/hostile.html#299", "Hostile");
  model->goBack();
  expectArrival("/agent.html", "Agent");
}

bool areStopped(const std::vector<SystemProcess>& processes) {
  return !processes.empty() && std::ranges::all_of(processes, &SystemProcess::isStopped);
}

/// Stops every process of the engine that runs a program of this name, as long as it exists. One that stayed
/// stopped would outlive the test.
class StoppedProcesses {
 public:
  explicit StoppedProcesses(const char* name) : stopped_(SystemProcess::ourselves().descendants(name)) {
    signal(SIGSTOP);
    // Each stops once its turn on a processor comes.
    if (!tests::eventually([&] { return areStopped(SystemProcess::ourselves().descendants(name)); }))
      throw std::runtime_error("it went on");
  }
  ~StoppedProcesses() { signal(SIGCONT); }

  void signal(int number) const {
    for (const auto& each : stopped_)
      ::kill(each.id(), number);
  }

 private:
  const std::vector<SystemProcess> stopped_;
};

TEST_F(HostilePageTest, AStoppedProcessMakesWayToo) {
  show("/agent.html");
  const StoppedProcesses stopped("WebKitWebProcess");
  model->load(server.address("/pricing.html"));
  expectArrival("/pricing.html", "Pricing");
}

/// The process that asks the network for the page's has been stopped.
class StoppedNetworkTest : public HostilePageTest {
 protected:
  void SetUp() override {
    show("/agent.html");
    show("/pricing.html");
    server.page("/pricing.html", "<title>Recovered</title>");
    stopped.emplace("WebKitNetworkProcess");
  }
  /// Ends it while it has something to do.
  void end() {
    settle();
    stopped->signal(SIGKILL);
  }
  /// No timer of ours is needed for that.
  void expectArrival(const std::string& path, const std::string& title) const {
    EXPECT_TRUE(tests::eventually([&] { return isAt(path, title); })) << *model->title;
  }

  std::optional<StoppedProcesses> stopped;
};

TEST_F(StoppedNetworkTest, AReloadThatItsEndInterruptsIsDoneByTheNext) {
  model->reload();
  end();
  expectArrival("/pricing.html", "Recovered");
}

TEST_F(StoppedNetworkTest, ADestinationThatItsEndInterruptsIsReachedByTheNext) {
  model->load(server.address("/agent.html"));
  end();
  expectArrival("/agent.html", "Agent");
}

TEST_F(StoppedNetworkTest, MakesWayForADestination) {
  model->load(server.address("/agent.html"));
  settle();
  timer.letOff(NetworkWatch::patience);
  expectArrival("/agent.html", "Agent");
}

TEST_F(HostilePageTest, APageThatMerelyComputesIsLeftAlone) {
  showPageThat(hang);
  EXPECT_FALSE(timer.isRunning(OwnersCommand::patience)) << "the owner has asked for nothing";
  EXPECT_THAT(SystemProcess::ourselves().descendants("WebKitWebProcess"), Not(IsEmpty()));
  EXPECT_EQ(server.count("/hostile.html"), 1);
}

/// What is seen of a page whenever the program has heard a word of it.
struct Hearing {
  explicit Hearing(WebKitWebView* heardView) : view(heardView) {
    const auto onWord = +[](Hearing* self) {
      ++self->words;
      self->hasWaited |= areStopped(SystemProcess::ourselves().descendants("WebKitWebProcess"));
    };
    g_signal_connect_swapped(view, "notify::uri", G_CALLBACK(onWord), this);
  }
  ~Hearing() { g_signal_handlers_disconnect_by_data(view, this); }
  Hearing(const Hearing&) = delete;
  Hearing& operator=(const Hearing&) = delete;

  WebKitWebView* view;
  int words = 0;
  bool hasWaited = false;
};

TEST_F(HostilePageTest, APageThatSaysTooMuchIsHeardLittleByLittle) {
  showPageThat(always("for (let i = 0; i < 100; ++i) location.hash = n++ + 'x'.repeat(1e6)"));
  Hearing hearing(webView());
  EXPECT_TRUE(tests::eventually([&] { return hearing.hasWaited; }));
  EXPECT_TRUE(tests::eventually([&, before = hearing.words] { return hearing.words > before + 20; }));
}

TEST_F(HostilePageTest, APageIsNotToBlameForABusyMachine) {
  const auto beBusy = +[] {
    const auto start = std::chrono::steady_clock::now();
    while (std::chrono::steady_clock::now() - start < std::chrono::milliseconds(700)) {
    }
  };
  const auto handler = g_signal_connect(webView(), "notify::title", G_CALLBACK(beBusy), nullptr);
  show("/agent.html");
  g_signal_handler_disconnect(webView(), handler);
  const auto page = SystemProcess::ourselves().descendants("WebKitWebProcess").at(0).id();
  model->reload();
  ASSERT_TRUE(tests::eventually([&] { return server.count("/agent.html") == 2; }));
  EXPECT_TRUE(SystemProcess(page).exists());
}

TEST_F(HostilePageTest, AProcessThatSomebodyElseHasStoppedStaysSo) {
  show("/agent.html");
  const StoppedProcesses stopped("WebKitWebProcess");
  PageBrake().hold();
  EXPECT_TRUE(areStopped(SystemProcess::ourselves().descendants("WebKitWebProcess")));
}

/// Servers that ask who is there, for one thing of a page after the other.
struct SignInFloodTest : HostilePageTest {
  /// Of one realm the engine asks only once at a time.
  static std::string realmOf(SoupServerMessage* message) {
    return g_uri_get_query(soup_server_message_get_uri(message));
  }
  SignInFloodTest() {
    server.answer("/sign-in", [](SoupServerMessage* message) {
      soup_server_message_set_status(message, SOUP_STATUS_UNAUTHORIZED, nullptr);
      soup_message_headers_replace(soup_server_message_get_response_headers(message), "WWW-Authenticate",
                                   ("Basic realm=\"" + realmOf(message) + "\"").c_str());
    });
    showPageThat(always("fetch('/sign-in?' + n++)"));
  }
  std::ptrdiff_t questions() {
    return std::ranges::count(tests::texts(model->webView().widget()), "Authentication Required");
  }

  tests::TestWindow window{model->webView().widget(), 600, 400};
};

TEST_F(SignInFloodTest, TheQuestionsOfAPageGoWithIt) {
  ASSERT_TRUE(tests::eventually([&] { return questions(); }, ::testing::Gt(1)));
  model->load(server.address("/pricing.html"));
  expectArrival("/pricing.html", "Pricing");
  EXPECT_TRUE(tests::eventually([&] { return questions(); }, ::testing::Eq(0)));
}

struct Trick {
  const char* name;
  std::string does;
};

void PrintTo(const Trick& trick, std::ostream* out) {
  *out << trick.name;
}

class TrickTest : public HostilePageTest, public ::testing::WithParamInterface<Trick> {
 protected:
  void SetUp() override {
    server.slowPage("/slow.html", "<title>Slow</title>", std::chrono::milliseconds(400));
    server.slowPage("/elsewhere.html", "<title>Elsewhere</title>", std::chrono::milliseconds(400));
    server.answer("/sign-in", [](SoupServerMessage* message) {
      soup_server_message_set_status(message, SOUP_STATUS_UNAUTHORIZED, nullptr);
      soup_message_headers_replace(soup_server_message_get_response_headers(message), "WWW-Authenticate",
                                   "Basic realm=\"x\"");
    });
    show("/agent.html");
    showPageThat(GetParam().does);
  }
};

TEST_P(TrickTest, DoesNotKeepTheOwnerFromGoingBackOrToADestination) {
  model->goBack();
  expectArrival("/agent.html", "Agent");
  showHostilePage();
  model->load(server.address("/slow.html"));
  expectArrival("/slow.html", "Slow");
}

TEST_P(TrickTest, DoesNotKeepTheOwnerFromReloading) {
  server.slowPage("/hostile.html", "<title>Recovered</title>", std::chrono::milliseconds(400));
  model->reload();
  EXPECT_TRUE(tests::eventually([&] { return spendTime(), *model->title == "Recovered"; })) << *model->title;
}

INSTANTIATE_TEST_SUITE_P(
    Page, TrickTest,
    ::testing::Values(
        Trick{"Windows", always("window.open('/elsewhere.html?' + n++)")},
        Trick{"Locations", always("location.href = '/elsewhere.html?' + n++")},
        Trick{"Replacements", always("location.replace('/elsewhere.html?' + n++)")},
        Trick{"Fragments", always("location.hash = n++")},
        Trick{"States", always("history.replaceState({}, '', '?' + n++)")},
        Trick{"Entries", always("history.pushState({}, '', '?' + n++)")},
        Trick{"EntriesOfAFrame", "frame = document.body.appendChild(document.createElement('iframe'));" +
                                     always("frame.src = '/elsewhere.html?' + n++")},
        Trick{"Reloads", always("location.reload()")}, Trick{"Forms", always("form.submit()")},
        Trick{"Links", always("link.click()")}, Trick{"Stops", always("window.stop()")},
        Trick{"WindowsOfNothing", always("open('about:blank'); open('javascript:1')")},
        Trick{"WindowsForForms", always("form.target = '_blank'; form.submit()")},
        Trick{"FramesInFrames", always("document.body.innerHTML ="
                                       "  '<iframe srcdoc=\"<iframe src=/elsewhere.html>\">'")},
        Trick{"Refreshes", always("document.head.append(Object.assign(document.createElement('meta'),"
                                  "  {httpEquiv: 'refresh', content: `0;/elsewhere.html?${n++}`}))")},
        Trick{"SignIns", always("document.body.innerHTML = `<iframe src='/sign-in?${n++}'>`")},
        Trick{"HangOnLeaving", "addEventListener('pagehide', () => { while (true) {} })"},
        Trick{"HangBeforeLeaving", "addEventListener('beforeunload', () => { while (true) {} })"}),
    [](const auto& trick) { return trick.param.name; });

} // namespace
} // namespace quorvel
