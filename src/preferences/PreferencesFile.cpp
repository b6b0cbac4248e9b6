#include "preferences/PreferencesFile.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <glib.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace quorvel {
namespace {

constexpr std::size_t largestSize = 1024 * 1024;

/// An open file that is closed with its scope.
class Descriptor {
 public:
  Descriptor(const std::string& path, int flags) : number_(::open(path.c_str(), flags | O_CLOEXEC)) {}
  ~Descriptor() {
    if (number_ >= 0)
      ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  explicit operator bool() const { return number_ >= 0; }
  int number() const { return number_; }

 private:
  int number_;
};

/// Takes the folder's lock, which ends when the descriptor is closed. False if another holds on to it.
bool lock(const Descriptor& folder) {
  constexpr auto patience = std::chrono::seconds(1);
  const auto deadline = std::chrono::steady_clock::now() + patience;
  while (::flock(folder.number(), LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR)
      return true; // A file system without locks: better to write unguarded than never.
    if (std::chrono::steady_clock::now() > deadline)
      return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return true;
}

std::optional<std::string> contents(const Descriptor& file) {
  struct stat status {};
  if (::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode))
    return std::nullopt;
  std::string text;
  std::array<char, 4096> buffer{};
  for (;;) {
    const ssize_t count = ::read(file.number(), buffer.data(), buffer.size());
    if (count == 0)
      return text;
    if (count < 0 && errno == EINTR)
      continue;
    if (count < 0 || text.size() > largestSize)
      return std::nullopt;
    text.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

bool replace(const std::string& path, const std::string& text) {
  constexpr int mode = 0600;
  return g_file_set_contents_full(path.c_str(), text.data(), static_cast<gssize>(text.size()),
                                  G_FILE_SET_CONTENTS_CONSISTENT, mode, nullptr);
}

} // namespace

PreferencesFile::PreferencesFile(const std::string& path) {
  std::error_code error;
  path_ = std::filesystem::weakly_canonical(path, error);
  if (error)
    path_ = path;
}

void PreferencesFile::makeFolder() const {
  g_mkdir_with_parents(folder().c_str(), 0700);
}

std::optional<PreferencesText> PreferencesFile::read() const {
  const Descriptor file(path_,
                        O_RDONLY | O_NONBLOCK); // A pipe in the file's place must not hold the program up.
  if (!file)
    return errno == ENOENT ? std::optional<PreferencesText>(std::in_place) : std::nullopt;
  const auto text = contents(file);
  return text ? std::optional<PreferencesText>(*text) : std::nullopt;
}

std::optional<PreferencesText>
PreferencesFile::edit(const std::function<void(PreferencesText&)>& change) const {
  makeFolder();
  const Descriptor lockedFolder(folder(), O_RDONLY | O_DIRECTORY);
  if (!lockedFolder || !lock(lockedFolder))
    return std::nullopt;

  auto edited = read();
  if (!edited)
    return std::nullopt;
  const bool isWriteProtected = ::eaccess(path_.c_str(), W_OK) != 0 && errno != ENOENT;
  const auto before = edited->text();
  change(*edited);
  const auto after = edited->text();
  if (after != before && (isWriteProtected || !replace(path_, after)))
    return std::nullopt;
  return edited;
}

std::string PreferencesFile::folder() const {
  return std::filesystem::path(path_).parent_path();
}

} // namespace quorvel
