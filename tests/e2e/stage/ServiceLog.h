#pragma once

#include <string>
#include <vector>

namespace quorvel::e2e {

struct LoggedRequest {
  long long microseconds = 0; ///< CLOCK_MONOTONIC
  std::string method;
  std::string host;
  std::string target; ///< path with query
  std::string userAgent;
  std::string cookie; ///< "-" when there was none
};

/// What the stand-in service says it was asked for.
class ServiceLog {
 public:
  explicit ServiceLog(std::string file) : file_(std::move(file)) {}

  std::vector<LoggedRequest> requests() const;
  /// The targets of all requests, in order.
  std::vector<std::string> targets() const;
  /// How often exactly this path with query was asked for.
  std::ptrdiff_t count(const std::string& target) const;

 private:
  std::string file_;
};

} // namespace quorvel::e2e
