#include "engine/WebSession.h"

#include <glib/gstdio.h>
#include <glibmm/miscutils.h>
#include <utility>

namespace quorvel {
namespace {

/// Whether new folders can be made in this one; the engine gives up the whole program where it finds that it
/// cannot.
bool canHoldFolders(const std::string& path) {
  std::string probe = Glib::build_filename(path, "probe-XXXXXX");
  return g_mkdtemp_full(probe.data(), 0700) && g_rmdir(probe.c_str()) == 0;
}

/// Whether the folder is there, of use, and private to the user, making it so where needed.
bool ensurePrivateFolder(const std::string& path) {
  return g_mkdir_with_parents(path.c_str(), 0700) == 0 && g_chmod(path.c_str(), 0700) == 0 &&
         canHoldFolders(path);
}

GObjectPointer<WebKitNetworkSession> makeSession(const WebFolders& folders) {
  // The engine would make the folders itself, open to every account of the machine.
  if (!ensurePrivateFolder(folders.data) || !ensurePrivateFolder(folders.cache))
    return GObjectPointer<WebKitNetworkSession>(webkit_network_session_new_ephemeral());

  GObjectPointer<WebKitNetworkSession> session(
      webkit_network_session_new(folders.data.c_str(), folders.cache.c_str()));
  // Cookies are the one thing a session does not keep on disk by itself.
  const std::string cookies = Glib::build_filename(folders.data, "cookies.sqlite");
  webkit_cookie_manager_set_persistent_storage(webkit_network_session_get_cookie_manager(session.get()),
                                               cookies.c_str(), WEBKIT_COOKIE_PERSISTENT_STORAGE_SQLITE);
  return session;
}

} // namespace

WebSession::WebSession(const WebFolders& folders, DownloadKeeper::Owner downloads)
    : session_(makeSession(folders)),
      downloads_(session_.get(), Glib::build_filename(folders.data, "downloads-under-way"),
                 std::move(downloads)) {}

} // namespace quorvel
