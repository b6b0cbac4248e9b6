#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <utility>

namespace quorvel {

/// Whether a value is one of its enumeration's cases: the compiler then knows it by name, and writes any
/// other as a cast.
template <auto value>
constexpr bool isCase() {
  return std::string_view(__PRETTY_FUNCTION__).find("= (") == std::string_view::npos;
}

/// How many cases an enumeration has. They count from 0 and leave no number out.
template <class Enumeration, std::size_t counted = 0>
constexpr std::size_t caseCount() {
  if constexpr (isCase<static_cast<Enumeration>(counted)>())
    return caseCount<Enumeration, counted + 1>();
  else
    return counted;
}

/// Every case in declaration order.
template <class Enumeration>
constexpr auto allCases() {
  std::array<Enumeration, caseCount<Enumeration>()> cases{};
  for (std::size_t i = 0; i < cases.size(); ++i)
    cases[i] = static_cast<Enumeration>(i);
  return cases;
}

/// One value for each case of an enumeration, in declaration order. It does not compile while one is missing.
template <class Enumeration, class Value>
class PerCase {
 public:
  template <class... Values>
    requires(sizeof...(Values) == caseCount<Enumeration>())
  constexpr PerCase(Values... values) : values_{std::move(values)...} {}

  constexpr const Value& operator[](Enumeration value) const {
    return values_[static_cast<std::size_t>(value)];
  }
  constexpr auto begin() const { return values_.begin(); }
  constexpr auto end() const { return values_.end(); }

 private:
  std::array<Value, caseCount<Enumeration>()> values_;
};

/// The table of a string-backed enumeration: one row per case, in declaration order, beginning with the raw
/// value.
///
/// An enumeration specialises it beside its declaration:
///
///     template <> struct EnumerationTable<RequestStatus> {
///       struct Row { std::string_view rawValue; AccentTone tone; };
///       static constexpr PerCase<RequestStatus, Row> rows{Row{"Routed", AccentTone::blue}, ...};
///     };
template <class Enumeration>
struct EnumerationTable;

/// The table's row of one case.
template <class Enumeration>
constexpr const auto& row(Enumeration value) {
  return EnumerationTable<Enumeration>::rows[value];
}

/// The text that stands for the case; for the state enumerations it is also the text on screen.
template <class Enumeration>
constexpr std::string_view rawValue(Enumeration value) {
  return row(value).rawValue;
}

/// The case with exactly this raw value; nothing for any other text.
template <class Enumeration>
constexpr std::optional<Enumeration> fromRawValue(std::string_view text) {
  for (const auto value : allCases<Enumeration>())
    if (rawValue(value) == text)
      return value;
  return std::nullopt;
}

} // namespace quorvel
