#include "engine/PageSandbox.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <glib.h>
#include <gmock/gmock.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvel {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// From now on this process makes only such system calls as a filter lets through: this one, all of them.
void filterSystemCalls() {
  sock_filter everything = BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW);
  sock_fprog program{1, &everything};
  ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
  ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program);
}

/// A process of ours that does nothing in whatever confines it.
class Child {
 public:
  explicit Child(int namespaces, bool isFiltered = false) : isFiltered_(isFiltered) {
    EXPECT_EQ(::pipe(isReady_), 0);
    std::vector<char> stack(1 << 18);
    // Anybody but root may have namespaces of their own only inside of a user namespace.
    const int flags = namespaces && ::geteuid() != 0 ? namespaces | CLONE_NEWUSER : namespaces;
    id_ = ::clone(idle, stack.data() + stack.size(), flags | SIGCHLD, this);
    if (id_ < 0)
      throw std::runtime_error("this system lets nobody have namespaces");
    char word = 0;
    EXPECT_EQ(::read(isReady_[0], &word, 1), 1);
  }
  ~Child() { end(); }
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  void end() {
    if (id_ <= 0)
      return;
    ::kill(id_, SIGKILL);
    ::waitpid(std::exchange(id_, 0), nullptr, 0);
  }
  SystemProcess process() const { return SystemProcess(id_); }

 private:
  static int idle(void* data) {
    const auto& self = *static_cast<Child*>(data);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::prctl(PR_SET_NAME, "QuorvelTestsIdleChild");
    if (self.isFiltered_)
      filterSystemCalls();
    static_cast<void>(::write(self.isReady_[1], "!", 1));
    for (;;)
      ::pause();
  }

  bool isFiltered_;
  int isReady_[2];
  pid_t id_ = 0;
};

std::vector<std::string> missing(const Child& child) {
  return missingFromSandbox(child.process(), SystemProcess::ourselves());
}

TEST(PageSandbox, AProcessWithItsOwnNamespacesAndAFilterLacksNothing) {
  EXPECT_THAT(missing(Child(CLONE_NEWNS | CLONE_NEWPID, true)), IsEmpty());
}

TEST(PageSandbox, AnOrdinaryProcessLacksEverything) {
  EXPECT_THAT(missing(Child(0)),
              ElementsAre("a mount namespace", "a process namespace", "a filter of system calls"));
}

TEST(PageSandbox, EachPartIsMissedByItself) {
  EXPECT_THAT(missing(Child(CLONE_NEWPID, true)), ElementsAre("a mount namespace"));
  EXPECT_THAT(missing(Child(CLONE_NEWNS, true)), ElementsAre("a process namespace"));
  EXPECT_THAT(missing(Child(CLONE_NEWNS | CLONE_NEWPID)), ElementsAre("a filter of system calls"));
}

TEST(PageSandbox, AProcessThatHasEndedLacksNothing) {
  Child child(0);
  const pid_t id = child.process().id();
  child.end();
  EXPECT_FALSE(SystemProcess(id).exists());
  EXPECT_THAT(missingFromSandbox(SystemProcess(id), SystemProcess::ourselves()), IsEmpty());
}

TEST(PageSandbox, ProcessesAreFoundByTheNameOfTheirProgramAndByWhoStartedThem) {
  const Child one(0), another(CLONE_NEWPID);
  EXPECT_THAT(SystemProcess::ourselves().descendants("QuorvelTestsIdleChild"), SizeIs(2));
  EXPECT_THAT(one.process().descendants("QuorvelTestsIdleChild"), IsEmpty());
  EXPECT_THAT(SystemProcess::ourselves().descendants("AnotherName"), IsEmpty());
}

/// A machine's files in a folder of the test's.
struct MachineTest : ::testing::Test {
  MachineTest() {
    for (const char* variable :
         {"WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS", "SNAP", "SNAP_NAME", "SNAP_REVISION"})
      g_unsetenv(variable);
  }
  ~MachineTest() override { fs::remove_all(root); }

  void write(const fs::path& file, const std::string& text) {
    fs::create_directories((root / file).parent_path());
    std::ofstream(root / file) << text;
  }
  /// Ends this process saying whether it lives in a sandbox.
  [[noreturn]] void answer() const { std::_Exit(isInsideOuterSandbox(root) ? 1 : 0); }
  static auto yes() { return ::testing::ExitedWithCode(1); }
  static auto no() { return ::testing::ExitedWithCode(0); }

  fs::path root = g_dir_make_tmp("quorvel-machine-XXXXXX", nullptr);
};

TEST_F(MachineTest, AFlatpakIsAnOuterSandbox) {
  write(".flatpak-info", "[Application]\nname=com.quorvel.Desktop\n");
  EXPECT_EXIT((filterSystemCalls(), answer()), yes(), "");
}

TEST_F(MachineTest, ASnapIsAnOuterSandbox) {
  for (const char* variable : {"SNAP", "SNAP_NAME", "SNAP_REVISION"})
    g_setenv(variable, "quorvel", true);
  EXPECT_EXIT((filterSystemCalls(), answer()), yes(), "");
  g_unsetenv("SNAP_REVISION");
  EXPECT_EXIT((filterSystemCalls(), answer()), no(), "") << "other programs know a variable SNAP too";
}

TEST_F(MachineTest, AFileThatMerelyHasTheNameIsNoSandbox) {
  write(".flatpak-info", "");
  EXPECT_EXIT((filterSystemCalls(), answer()), no(), "");
}

TEST_F(MachineTest, ASandboxWithoutAFilterIsNone) {
  write(".flatpak-info", "[Application]\nname=com.quorvel.Desktop\n");
  EXPECT_EXIT(answer(), no(), "");
}

TEST_F(MachineTest, AnOrdinaryMachineGivesNoReasonToGoWithout) {
  EXPECT_EQ(whyUnconfined(root), "");
}

TEST_F(MachineTest, EveryKnownReasonIsNamed) {
  const auto expectNamed = [this](const char* reason) {
    EXPECT_THAT(whyUnconfined(root), ::testing::HasSubstr(reason));
  };
  write("run/.containerenv", "");
  expectNamed("container");
  for (const char* variable : {"SNAP", "SNAP_NAME", "SNAP_REVISION"})
    g_setenv(variable, "quorvel", true);
  expectNamed("SNAP");
  write(".flatpak-info", "");
  expectNamed("/.flatpak-info");
  g_setenv("WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS", "1", true);
  expectNamed("WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS");
}

} // namespace
} // namespace quorvel
