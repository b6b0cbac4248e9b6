#include "preferences/wholeFiles.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <glib.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvel {
namespace {

namespace fs = std::filesystem;

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

std::optional<std::string> contents(const Descriptor& file) {
  struct stat status{};
  if (::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode))
    return std::nullopt;
  std::string bytes;
  std::array<char, 4096> buffer{};
  for (;;) {
    const ssize_t count = ::read(file.number(), buffer.data(), buffer.size());
    if (count == 0)
      return bytes;
    if (count < 0 && errno == EINTR)
      continue;
    if (count < 0 || bytes.size() + static_cast<std::size_t>(count) > largestFileSize)
      return std::nullopt;
    bytes.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

bool isWriteProtected(const std::string& path) {
  return ::eaccess(path.c_str(), W_OK) != 0 && errno != ENOENT;
}

/// Where the new file stands until it is whole. Nobody else gives a file such a name.
fs::path stagingPlace(const fs::path& path) {
  return path.parent_path() / ("." + path.filename().string() + ".quorvel-write");
}

/// Whether this is the staging place's name, or the one the library writes it under: with six letters more.
bool isLeftover(const std::string& name, const std::string& stagingName) {
  return name.starts_with(stagingName) &&
         (name.size() == stagingName.size() || name.size() == stagingName.size() + 7);
}

} // namespace

std::optional<std::string> behindLinks(const std::string& path) {
  constexpr int mostLinks = 40; // as many as the system follows
  fs::path place = path;
  for (int i = 0; i < mostLinks; ++i) {
    std::error_code isNoLink;
    const auto target = fs::read_symlink(place, isNoLink);
    if (isNoLink)
      return place;
    place = place.parent_path() / target;
  }
  return std::nullopt;
}

std::optional<std::string> contentsOf(const std::string& path) {
  // A pipe in the file's place must not hold the program up.
  const Descriptor file(path, O_RDONLY | O_NONBLOCK | O_NOFOLLOW);
  if (!file)
    return errno == ENOENT ? std::optional<std::string>(std::in_place) : std::nullopt;
  return contents(file);
}

bool replaceFile(const std::string& path, const std::string& bytes) {
  if (bytes.size() > largestFileSize || isWriteProtected(path))
    return false;
  constexpr auto wholeAndOnDisk =
      GFileSetContentsFlags(G_FILE_SET_CONTENTS_CONSISTENT | G_FILE_SET_CONTENTS_DURABLE);
  constexpr mode_t mode = 0600;
  const auto staging = stagingPlace(path);
  if (!g_file_set_contents_full(staging.c_str(), bytes.data(), static_cast<gssize>(bytes.size()),
                                wholeAndOnDisk, mode, nullptr))
    return false;
  // The library's mode is subject to the user's mask, which may take the owner's own rights away.
  if (::chmod(staging.c_str(), mode) == 0 && ::rename(staging.c_str(), path.c_str()) == 0)
    return true;
  ::unlink(staging.c_str());
  return false;
}

void removeLeftovers(const std::string& path) {
  const auto staging = stagingPlace(path);
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(staging.parent_path(), error))
    if (isLeftover(entry.path().filename(), staging.filename()))
      ::unlink(entry.path().c_str());
}

} // namespace quorvel
