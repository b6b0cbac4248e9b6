#pragma once

#include "engine/GObjectPointer.h"

#include <chrono>
#include <functional>
#include <libsoup/soup.h>
#include <map>
#include <string>
#include <vector>

namespace quorvel {

/// A web server on the loopback interface, in the test's own main loop. What it has no answer for is a 404.
class LoopbackServer {
 public:
  struct Request {
    std::string path;
    std::string userAgent;
    std::string cookies;
  };
  using Answer = std::function<void(SoupServerMessage*)>;

  LoopbackServer();
  ~LoopbackServer();

  /// The absolute address of a path; `host` may be another name of this machine.
  std::string address(const std::string& path, const std::string& host = "127.0.0.1") const;

  void answer(const std::string& path, Answer answer) { answers_[path] = std::move(answer); }
  void page(const std::string& path, const std::string& html);
  /// A page that comes after a while.
  void slowPage(const std::string& path, const std::string& html, std::chrono::milliseconds delay);
  void redirect(const std::string& path, const std::string& target);
  /// Accepts the request and says nothing more.
  void silence(const std::string& path);
  /// Promises more than it sends, and hangs up.
  void hangUpInMidBody(const std::string& path);

  const std::vector<Request>& requests() const { return requests_; }
  /// How often a path was asked for.
  int count(const std::string& path) const;

 private:
  void handle(SoupServerMessage* message, const char* path);

  GObjectPointer<SoupServer> server_;
  guint port_ = 0;
  std::map<std::string, Answer> answers_;
  std::vector<Request> requests_;
};

} // namespace quorvel
