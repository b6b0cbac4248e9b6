#pragma once

#include "PageFolders.h"
#include "RequestLog.h"
#include "ServiceOptions.h"

#include <glibmm/refptr.h>
#include <libsoup/soup.h>
#include <memory>

namespace quorvel::demo {

/// The stand-in for the hosted service: a TLS server that answers from page folders and from the staged
/// replies. Single-threaded; needs a running GLib main loop.
class DemoService {
 public:
  /// Listens as soon as it is constructed. Throws std::runtime_error with one sentence when it cannot.
  explicit DemoService(const ServiceOptions& options);

 private:
  struct Unref {
    void operator()(SoupServer* server) const { g_object_unref(server); }
  };

  static void onRequest(SoupServer*, SoupServerMessage* message, const char* path, GHashTable* query,
                        gpointer service);
  void answer(SoupServerMessage* message, const std::string& path, GHashTable* query);
  /// The pages' own /404.html, where they have one.
  void answerNotFound(SoupServerMessage* message);

  PageFolders pages_;
  RequestLog log_;
  std::unique_ptr<SoupServer, Unref> server_;
};

} // namespace quorvel::demo
