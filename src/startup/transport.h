#pragma once

namespace quorvel {

/// Has the web engine refuse sites that speak no newer version of TLS than 1.1, which the system's library
/// for it would still talk to. What the user has set for that library stays. To be called before the toolkit
/// starts and before there is a second thread.
void refuseOutdatedTransport();

} // namespace quorvel
