#pragma once

#include "vocabulary/Enumeration.h"

namespace quorvel {

/// The switches the program remembers for its user. None of them changes what the program does.
enum class PreferenceKey {
  requireApprovalForSpend,
  requireApprovalForCustomerMessages,
  requireApprovalForBookings,
  keepActivityHistory,
  showInspector,
  dailyBriefEnabled,
};

template <>
struct EnumerationTable<PreferenceKey> {
  struct Row {
    std::string_view rawValue; ///< the key in the file
    bool defaultValue;
  };
  static constexpr PerCase<PreferenceKey, Row> rows{
      Row{"Quorvel.requireApprovalForSpend", true},
      Row{"Quorvel.requireApprovalForCustomerMessages", true},
      Row{"Quorvel.requireApprovalForBookings", true},
      Row{"Quorvel.keepActivityHistory", true},
      Row{"Quorvel.showInspector", true},
      Row{"Quorvel.dailyBriefEnabled", true},
  };
};

/// What the switch shows while its key is absent from the file.
constexpr bool defaultValue(PreferenceKey key) {
  return row(key).defaultValue;
}

} // namespace quorvel
