#pragma once

#include <string>
#include <string_view>

namespace quorvel {

/// An address as it is shown to its reader, who is to see whose page this is whatever the page does.
///
/// User information is left out. A host is in the letters the network knows it by (punycode), and every other
/// character that is not plain ASCII, or not seen, is percent-encoded. Both parts are short enough to be laid
/// out at no cost, and longer than any screen shows.
struct DisplayedAddress {
  std::string
      origin; ///< scheme, host and port; of a host that is too long its end. To be shown before all else
  std::string rest; ///< path, query and fragment; may be shortened in the middle
};

/// What to show for an address as the engine names it. Any other text is shown too, and as harmless.
DisplayedAddress displayedAddress(std::string_view address);

} // namespace quorvel
