// The preferences' file: whatever stands in it, a flip changes one switch, keeps the rest, and is read again.

#include "fuzz/expect.h"

#include "preferences/PreferenceKey.h"
#include "preferences/PreferencesText.h"
#include "preferences/TextEncoding.h"

#include <cstdint>

namespace quorvel {
namespace {

/// What a file with these bytes says; nothing if it cannot be read.
std::optional<PreferencesText> read(const std::string& bytes) {
  const auto text = TextEncoding::of(bytes).decoded(bytes);
  return text ? std::optional<PreferencesText>(*text) : std::nullopt;
}

void expectFlip(const std::string& bytes, PreferenceKey flipped, bool isOn) {
  const auto before = read(bytes);
  auto edited = *before;
  edited.setValue(rawValue(flipped), isOn);
  const auto written = TextEncoding::of(bytes).encoded(edited.text());
  expect(written.has_value(), "every flip can be written");
  const auto after = read(*written);
  expect(after.has_value(), "what was written can be read");
  for (const auto key : allCases<PreferenceKey>())
    expect(after->value(rawValue(key)) == (key == flipped ? isOn : before->value(rawValue(key))),
           "the flipped switch stands as it was flipped, the others as they stood");
  const auto text = after->text();
  edited.setValue(rawValue(flipped), isOn);
  expect(edited.text() == text, "a second flip to the same changes nothing");
}

} // namespace
} // namespace quorvel

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvel;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const auto text = read(bytes);
  if (!text)
    return 0;
  expect(TextEncoding::of(bytes).encoded(text->text()) == bytes, "what nobody flips stays as it is");
  // One flip an input: the search comes by every one of them in no time.
  constexpr auto keys = allCases<PreferenceKey>();
  expectFlip(bytes, keys[size % keys.size()], size / keys.size() % 2 == 0);
  return 0;
}
