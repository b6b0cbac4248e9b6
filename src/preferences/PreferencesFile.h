#pragma once

#include "preferences/PreferencesText.h"

#include <functional>
#include <optional>
#include <string>

namespace quorvel {

/// The preferences file on disk, shared with every other running program of this user.
class PreferencesFile {
 public:
  /// `path` is absolute. A symbolic link there is followed once, here: the link stays and what it points to
  /// is read and written.
  explicit PreferencesFile(const std::string& path);

  const std::string& path() const { return path_; }
  /// The folder the file stands in; made with mode 0700 where it is missing. Failing is no error here.
  void makeFolder() const;

  /// The file's text; empty where there is no file. Nothing if there is something that cannot be read as one:
  /// no right to, no regular file, or larger than any preferences file can be.
  std::optional<PreferencesText> read() const;

  /// Reads the file, lets `change` edit it and puts the new text in its place, all of it or nothing.
  ///
  /// Programs that edit at the same time wait for each other, for a second at most, so that none loses what
  /// another wrote. Returns the text that is on disk now, or nothing if the file was left as it is: because
  /// it is not ours to read or write, the disk is full, or another program keeps the folder locked.
  std::optional<PreferencesText> edit(const std::function<void(PreferencesText&)>& change) const;

 private:
  std::string folder() const;

  std::string path_;
};

} // namespace quorvel
