#include "RequestLog.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <glib.h>
#include <system_error>
#include <unistd.h>

namespace quorvel::demo {
namespace {

/// A client chooses what its headers hold; none of it may look like a second field or a second line.
std::string field(std::string text) {
  if (text.empty())
    return "-";
  std::replace_if(text.begin(), text.end(), [](char c) { return g_ascii_iscntrl(c); }, '?');
  return text;
}

} // namespace

RequestLog::RequestLog(const std::string& path) {
  if (path.empty())
    return;
  file_ = ::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
  if (file_ < 0)
    throw std::system_error(errno, std::generic_category(), "cannot write the log " + path);
}

RequestLog::~RequestLog() {
  if (file_ >= 0)
    ::close(file_);
}

void RequestLog::write(const LoggedRequest& request) {
  if (file_ < 0)
    return;
  const std::string line = std::to_string(g_get_monotonic_time()) + '\t' + field(request.method) + '\t' +
                           field(request.host) + '\t' + field(request.target) + '\t' +
                           field(request.userAgent) + '\t' + field(request.cookie) + '\n';
  if (::write(file_, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
    g_printerr("quorvel-demo-service: a request could not be logged: %s\n", g_strerror(errno));
}

} // namespace quorvel::demo
