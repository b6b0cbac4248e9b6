#include "preferences/PreferencesFile.h"

#include "preferences/FolderLock.h"
#include "preferences/TextEncoding.h"
#include "preferences/wholeFiles.h"

#include <filesystem>
#include <glib.h>
#include <sys/stat.h>

namespace quorvel {
namespace {

namespace fs = std::filesystem;

std::string folderOf(const std::string& path) {
  return fs::path(path).parent_path();
}

} // namespace

void PreferencesFile::tidyFolder() const {
  const auto place = behindLinks(path_);
  if (!place)
    return;
  // Under the lock, so that nothing goes that another program is just writing.
  if (const FolderLock lock(folderOf(*place), std::chrono::milliseconds(0)); lock)
    removeLeftovers(*place);
}

std::optional<PreferencesText> PreferencesFile::read() const {
  const auto place = behindLinks(path_);
  const auto bytes = place ? contentsOf(*place) : std::nullopt;
  const auto text = bytes ? TextEncoding::of(*bytes).decoded(*bytes) : std::nullopt;
  return text ? std::optional<PreferencesText>(*text) : std::nullopt;
}

std::optional<PreferencesText> PreferencesFile::edit(const std::function<void(PreferencesText&)>& change,
                                                     std::chrono::milliseconds patience) const {
  makeFolder();
  const auto place = behindLinks(path_);
  if (!place)
    return std::nullopt;
  const FolderLock lock(folderOf(*place), patience);
  const auto bytes = lock ? contentsOf(*place) : std::nullopt;
  if (!bytes)
    return std::nullopt;
  const auto encoding = TextEncoding::of(*bytes);
  const auto text = encoding.decoded(*bytes);
  if (!text)
    return std::nullopt;

  PreferencesText edited(*text);
  change(edited);
  const auto after = encoding.encoded(edited.text());
  if (!after || (after != bytes && !replaceFile(*place, *after)))
    return std::nullopt;
  return edited;
}

/// Only the file's own folder: where a link leads is for its owner to make.
void PreferencesFile::makeFolder() const {
  const auto folder = folderOf(path_);
  std::error_code error;
  if (fs::exists(folder, error))
    return;
  constexpr mode_t mode = 0700;
  g_mkdir_with_parents(folder.c_str(), mode);
  ::chmod(folder.c_str(), mode); // Making it is subject to the user's mask.
}

} // namespace quorvel
