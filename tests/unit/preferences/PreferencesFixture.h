#pragma once

#include "preferences/Preferences.h"
#include "support/TemporaryFolder.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <glibmm/convert.h>
#include <glibmm/main.h>
#include <glibmm/spawn.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvel {

namespace fs = std::filesystem;
using Key = PreferenceKey;
using tests::eventually;

/// While it lives, the file system treats the test as a user without rights, also where the tests run as
/// root.
struct WithoutRights {
  WithoutRights() : user(::geteuid()) {
    constexpr uid_t nobody = 65534;
    EXPECT_TRUE(user != 0 || ::seteuid(nobody) == 0);
  }
  ~WithoutRights() { EXPECT_TRUE(user != 0 || ::seteuid(user) == 0); }
  const uid_t user;
};

/// While it lives, no file can grow past `size` bytes: the disk is full.
struct FullDisk {
  explicit FullDisk(rlim_t size) {
    std::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit full{size, before.rlim_max};
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &full), 0);
  }
  ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &before); }
  rlimit before{};
};

/// A second program with the same preferences.
class Peer {
 public:
  explicit Peer(std::vector<std::string> arguments, const std::vector<std::string>& environment = {},
                const sigc::slot<void()>& beforeItRuns = {}) {
    arguments.insert(arguments.begin(), PREFERENCES_PEER);
    Glib::spawn_async_with_pipes("", arguments, environment, Glib::SpawnFlags::DO_NOT_REAP_CHILD,
                                 beforeItRuns, &pid_, nullptr, &output_);
  }
  Peer(const Peer&) = delete;
  Peer& operator=(const Peer&) = delete;
  ~Peer() {
    if (pid_ != 0)
      ::kill(pid_, SIGKILL);
    ::close(output_);
  }

  std::string nextLine() {
    std::string line;
    for (char letter = 0; letter != '\n' && ::read(output_, &letter, 1) == 1;)
      line += letter;
    return line;
  }
  /// How it ends, as `waitpid()` says it.
  int end() {
    int status = 0;
    return ::waitpid(std::exchange(pid_, 0), &status, 0) > 0 ? status : -1;
  }
  /// The line it says before it ends well.
  std::string lastWords() {
    const auto line = nextLine();
    EXPECT_EQ(end(), 0);
    return line;
  }

 private:
  Glib::Pid pid_ = 0;
  int output_ = -1;
};

struct PreferencesTest : ::testing::Test {
  PreferencesTest() { fs::permissions(root, fs::perms(0755)); }

  void write(const std::string& text) const {
    fs::create_directories(folder);
    std::ofstream(file, std::ios::binary) << text;
  }
  std::string written() const {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  std::vector<std::string> namesInFolder() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
      names.push_back(entry.path().filename());
    return names;
  }
  static unsigned mode(const fs::path& path) { return static_cast<unsigned>(fs::status(path).permissions()); }

  /// Another program flips a switch so many times; what it then says.
  std::string peerFlips(Key key, int times = 1) const {
    return Peer({file, "flip", std::string(rawValue(key)), std::to_string(times)}).lastWords();
  }
  /// Another program flips a switch and is killed in the middle of writing the file.
  void killAPeerThatWrites() const {
    // The system kills whoever makes a file larger than it may be.
    const rlimit none{0, 0};
    EXPECT_TRUE(WIFSIGNALED(Peer({file, "flip", "Quorvel.dailyBriefEnabled", "1"}, {}, [none] {
                              std::signal(SIGXFSZ, SIG_DFL);
                              ::setrlimit(RLIMIT_FSIZE, &none);
                              ::setrlimit(RLIMIT_CORE, &none);
                            }).end()));
  }

  const tests::TemporaryFolder temporary;
  fs::path root = temporary.path, folder = root / "quorvel", file = folder / "preferences.ini";
};

} // namespace quorvel
