#pragma once

#include <string>
#include <string_view>

namespace quorvel::demo {

/// One request as the log tells it. Fields a client left out are empty.
struct LoggedRequest {
  std::string method;
  std::string host;
  std::string target; ///< path with query
  std::string userAgent;
  std::string cookie;
};

/// One line a request, written through at once, so that whoever watches the file sees a request before its
/// answer:
///   MICROSECONDS <tab> METHOD <tab> HOST <tab> PATH?QUERY <tab> USER AGENT <tab> COOKIE
/// The microseconds are CLOCK_MONOTONIC's; an empty field is "-"; control characters in a field become "?".
class RequestLog {
 public:
  /// An empty path keeps no log. Throws std::system_error when the file cannot be opened.
  explicit RequestLog(const std::string& path);
  ~RequestLog();
  RequestLog(const RequestLog&) = delete;
  RequestLog& operator=(const RequestLog&) = delete;

  void write(const LoggedRequest& request);

 private:
  int file_ = -1;
};

} // namespace quorvel::demo
