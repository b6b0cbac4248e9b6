#pragma once

#include <concepts>
#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <tuple>
#include <vector>

namespace quorvel {

/// A plain value of the workspace, told apart by its `id`; `fields()` ties its fields in declaration order.
template <class Type>
concept Record = requires(const Type& record) {
  { record.id } -> std::convertible_to<const std::string&>;
  record.fields();
};

/// A list of records. New ones come in at the front, which costs the same however long the list is.
template <Record Type>
using RecordList = std::deque<Type>;

template <class Field>
std::size_t fieldHash(const Field& field) {
  return std::hash<Field>{}(field);
}

inline std::size_t fieldHash(const std::vector<std::string>& texts);

/// One hash over several fields, in which their order counts.
template <class... Fields>
std::size_t combinedHash(const Fields&... fields) {
  std::size_t hash = 0;
  const auto mix = [&hash](std::size_t next) {
    hash ^= next + 0x9e3779b97f4a7c15 + (hash << 6) + (hash >> 2);
  };
  (mix(fieldHash(fields)), ...);
  return hash;
}

std::size_t fieldHash(const std::vector<std::string>& texts) {
  std::size_t hash = texts.size();
  for (const auto& text : texts)
    hash = combinedHash(hash, text);
  return hash;
}

} // namespace quorvel

/// Every record hashes over all its fields.
template <quorvel::Record Type>
struct std::hash<Type> {
  std::size_t operator()(const Type& record) const {
    return std::apply([](const auto&... fields) { return quorvel::combinedHash(fields...); },
                      record.fields());
  }
};
