#pragma once

#include "e2e/stage/ServiceLog.h"

#include <filesystem>
#include <string>
#include <vector>

namespace quorvel::e2e {

/// Everything around the program under test, as if each test were the first: an account with empty folders,
/// the pointer in the middle of the screen, the system's handlers for links, and the service's log and pages.
/// The pages of the six destinations are blank ones that report; `serveOwnPages` brings back those that the
/// stand-in service has for people.
class Stage {
 public:
  /// Names the folder of the stage, for a process that already runs in the private network.
  static constexpr auto variable = "QUORVEL_STAGE";

  Stage();

  const std::filesystem::path& folder() const { return folder_; }
  std::filesystem::path config() const { return folder_ / "config"; }
  std::filesystem::path data() const { return folder_ / "data"; }
  std::filesystem::path cache() const { return folder_ / "cache"; }
  std::filesystem::path state() const { return folder_ / "state"; }

  /// Puts a page on the service, in front of the one it serves under that name otherwise. Each time the page
  /// comes on the screen it reports "shown=" and its path.
  void servePage(const std::string& name, const std::string& html) const;
  /// Goes back to the service's own pages.
  void serveOwnPages() const;
  const ServiceLog& requests() const { return requests_; }
  /// What the pages said of themselves, by asking for "/report?" and the text.
  std::vector<std::string> reports() const;

  /// The addresses that were handed to the system, in order.
  std::vector<std::string> handedToSystem() const;
  /// Leaves the system without a program for any kind of link.
  void removeHandler() const;

  /// A picture of the whole screen as a PNG file, and the fingerprint of what a part of it shows.
  void savePicture(const std::string& file) const;

  std::string fingerprint(const std::string& part) const;

 private:
  void clear() const;
  void prepareAccount();
  void registerHandler() const;

  std::filesystem::path folder_;
  ServiceLog requests_;
};

} // namespace quorvel::e2e
