#pragma once

#include "preferences/PreferencesText.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace quorvel {

/// The preferences file on disk, shared with every other running program of this user.
///
/// A symbolic link in its place stays: what it leads to is read and written, also where that is not there
/// yet.
class PreferencesFile {
 public:
  /// `path` is absolute.
  explicit PreferencesFile(std::string path) : path_(std::move(path)) {}

  /// Removes what killed programs left half written in the folder the file stands in. Failing is no error
  /// here.
  void tidyFolder() const;

  /// The file's text; empty where there is no file. Nothing if there is something that cannot be read as one:
  /// no right to, no regular file, broken in its encoding, or larger than any preferences file can be.
  std::optional<PreferencesText> read() const;

  /// Reads the file, lets `change` edit it and puts the new text in its place, all of it or nothing.
  ///
  /// Programs that edit at the same time wait for each other, for `patience` at most, so that none loses what
  /// another wrote. Returns the text that is on disk now, or nothing if the file was left as it is: because
  /// it is not ours to read or write, the disk is full, or another program keeps the folder locked.
  std::optional<PreferencesText> edit(const std::function<void(PreferencesText&)>& change,
                                      std::chrono::milliseconds patience) const;

 private:
  void makeFolder() const;

  std::string path_;
};

} // namespace quorvel
