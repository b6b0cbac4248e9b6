#include "startup/transport.h"

#include <glib.h>

namespace quorvel {

void refuseOutdatedTransport() {
  // The engine offers no setting for this. Its network process inherits the environment.
  g_setenv("G_TLS_GNUTLS_PRIORITY", "NORMAL:%COMPAT:-VERS-TLS1.0:-VERS-TLS1.1", false);
}

} // namespace quorvel
