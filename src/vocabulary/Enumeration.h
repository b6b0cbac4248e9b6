#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <ranges>
#include <string_view>

namespace quorvel {

/// The table of a string-backed enumeration: one row per case, in declaration order, beginning with the raw
/// value.
///
/// An enumeration specialises it beside its declaration:
///
///     template <> struct EnumerationTable<RequestStatus> {
///       struct Row { std::string_view rawValue; AccentTone tone; };
///       static constexpr std::array rows{Row{"Routed", AccentTone::blue}, ...};
///     };
template <class Enumeration>
struct EnumerationTable;

/// The table's row of one case.
template <class Enumeration>
constexpr const auto& row(Enumeration value) {
  return EnumerationTable<Enumeration>::rows[static_cast<std::size_t>(value)];
}

/// The text that stands for the case; for the state enumerations it is also the text on screen.
template <class Enumeration>
constexpr std::string_view rawValue(Enumeration value) {
  return row(value).rawValue;
}

/// Every case in declaration order.
template <class Enumeration>
constexpr auto allCases() {
  std::array<Enumeration, EnumerationTable<Enumeration>::rows.size()> cases{};
  for (std::size_t i = 0; i < cases.size(); ++i)
    cases[i] = static_cast<Enumeration>(i);
  return cases;
}

/// The case with exactly this raw value; nothing for any other text.
template <class Enumeration>
constexpr std::optional<Enumeration> fromRawValue(std::string_view text) {
  constexpr auto& rows = EnumerationTable<Enumeration>::rows;
  const auto found = std::ranges::find(rows, text, [](const auto& candidate) { return candidate.rawValue; });
  if (found == rows.end())
    return std::nullopt;
  return static_cast<Enumeration>(found - rows.begin());
}

} // namespace quorvel
