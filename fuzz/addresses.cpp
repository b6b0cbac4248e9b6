// Addresses: how they are shown, where they lead and whose row they light up, whatever a page makes of them.

#include "fuzz/expect.h"

#include "client/QuorvelRoute.h"
#include "client/displayedAddress.h"
#include "engine/NavigationPolicy.h"

#include <algorithm>
#include <cctype>
#include <cstdint>

namespace quorvel {
namespace {

constexpr std::string_view ellipsis = "\u2026";

bool contains(std::string_view text, std::string_view part) {
  return text.find(part) != text.npos;
}

bool isPlain(std::string text) {
  if (const auto cut = text.find(ellipsis); cut != text.npos)
    text.erase(cut, ellipsis.size());
  return std::ranges::all_of(text, [](char letter) { return letter > ' ' && letter <= '~'; });
}

void expectHarmlessText(std::string_view address) {
  const auto shown = displayedAddress(address);
  expect(isPlain(shown.origin) && isPlain(shown.rest), "the field shows plain letters only");
  expect(shown.origin.size() < 1'000 && shown.rest.size() < 13'000, "the field shows a short text");
  if (const auto host = shown.origin.find("//"); host != shown.origin.npos)
    expect(shown.origin.find_first_of("/\\?#@", host + 2) == shown.origin.npos,
           "the host is nothing but a host");

  const auto whole = shown.origin + shown.rest;
  if (whole.size() < 250 && !contains(whole, ellipsis)) {
    const auto again = displayedAddress(whole);
    expect(again.origin == shown.origin && again.rest == shown.rest, "what is shown reads as it is shown");
  }
}

bool hasScheme(std::string_view address, std::string_view scheme) {
  const auto isSame = [](char one, char other) {
    return std::tolower(static_cast<unsigned char>(one)) == other;
  };
  return address.size() > scheme.size() && address[scheme.size()] == ':' &&
         std::ranges::equal(address.substr(0, scheme.size()), scheme, isSame);
}

void expectRule(const std::string& address) {
  for (const bool wantsWindow : {false, true})
    for (const bool isDropped : {false, true}) {
      const auto choice = choose({.address = address, .wantsWindow = wantsWindow, .isDropped = isDropped});
      const bool isForSystem = hasScheme(address, "mailto") || hasScheme(address, "tel");
      expect((choice == NavigationChoice::system) == isForSystem,
             "mail and telephone, and they alone, leave");
      if (wantsWindow && (hasScheme(address, "javascript") || hasScheme(address, "file")))
        expect(choice == NavigationChoice::nothing,
               "no page runs scripts or reads files in the program's name");
    }
}

} // namespace
} // namespace quorvel

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvel;
  const std::string address(reinterpret_cast<const char*>(data), size);
  expectHarmlessText(address);
  expectRule(address.substr(0, address.find('\0'))); // as the engine prints it
  for (const auto route : {QuorvelRoute::agent, QuorvelRoute::pricing})
    expect(!matches(route, address) || contains(address, ".html"), "a row lights up for its page only");
  return 0;
}
