#include "client/displayedAddress.h"

#include <algorithm>
#include <glib.h>
#include <memory>
#include <optional>

namespace quorvel {
namespace {

constexpr std::string_view ellipsis = "\u2026";

bool isPlain(char letter) {
  return letter > ' ' && letter <= '~';
}

std::string escaped(std::string_view text) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string result;
  for (const char letter : text) {
    if (isPlain(letter)) {
      result += letter;
    } else {
      const auto byte = static_cast<unsigned char>(letter);
      result.append({'%', digits[byte / 16], digits[byte % 16]});
    }
  }
  return result;
}

/// "https://" or "about:"; nothing where no scheme is named.
std::string_view plainSchemeOf(std::string_view address) {
  constexpr std::size_t longest = 32;
  constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-.";
  const auto end = address.substr(0, longest).find_first_not_of(letters);
  if (end == address.npos || end == 0 || address[end] != ':')
    return {};
  return address.substr(0, end + (address.substr(end).starts_with("://") ? 3 : 1));
}

/// An object that a page has made goes by the page's address after a scheme of its own: "blob:https://".
std::string_view schemeOf(std::string_view address) {
  constexpr std::string_view wrapper = "blob:";
  if (!address.starts_with(wrapper))
    return plainSchemeOf(address);
  return address.substr(0, wrapper.size() + plainSchemeOf(address.substr(wrapper.size())).size());
}

/// Host and port of what stands before the path.
std::string_view hostOf(std::string_view authority) {
  const auto at = authority.rfind('@');
  return at == authority.npos ? authority : authority.substr(at + 1);
}

/// The name that the network knows a host by; nothing where it knows none.
std::optional<std::string> networkName(const std::string& host) {
  constexpr std::string_view delimiters = "/\\?#@:"; // what some letters become is no part of a name
  if (!g_utf8_validate(host.c_str(), static_cast<gssize>(host.size()), nullptr))
    return std::nullopt;
  const std::unique_ptr<char, decltype(&g_free)> name(g_hostname_to_ascii(host.c_str()), &g_free);
  if (!name || std::string_view(name.get()).find_first_of(delimiters) != std::string_view::npos)
    return std::nullopt;
  return name.get();
}

/// In the letters the network knows it by, of which none looks like one of another script.
std::string inPunycode(std::string_view hostAndPort) {
  if (std::ranges::all_of(hostAndPort, isPlain))
    return std::string(hostAndPort);
  const std::string host(hostAndPort.substr(0, hostAndPort.find(':')));
  return escaped(networkName(host).value_or(host)).append(escaped(hostAndPort.substr(host.size())));
}

/// The last letters tell whose host it is.
std::string shortenedHost(std::string_view host) {
  constexpr std::size_t longest = 255; // as the network allows
  if (host.size() <= longest)
    return inPunycode(host);
  return std::string(ellipsis) + escaped(host.substr(host.size() - longest));
}

/// In the middle, where the label would shorten it all the same.
std::string shortenedRest(std::string_view rest) {
  constexpr std::size_t kept = 2048; // at each end
  if (rest.size() <= 2 * kept)
    return escaped(rest);
  return escaped(rest.substr(0, kept)).append(ellipsis).append(escaped(rest.substr(rest.size() - kept)));
}

} // namespace

DisplayedAddress displayedAddress(std::string_view address) {
  const auto scheme = schemeOf(address);
  auto rest = address.substr(scheme.size());
  std::string origin = escaped(scheme);
  if (scheme.ends_with("//")) {
    const auto authority = rest.substr(0, rest.find_first_of("/\\?#"));
    origin += shortenedHost(hostOf(authority));
    rest.remove_prefix(authority.size());
  }
  return {origin, shortenedRest(rest)};
}

} // namespace quorvel
